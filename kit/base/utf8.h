#pragma once

#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Steps through UTF-8; for the sources of this folder.
namespace quillon::utf8 {

inline constexpr char32_t replacement = 0xFFFD;

inline bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

// ICU's macros narrow to bytes without saying so.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"

/// The scalar at `position`, which moves behind it; -1 for a maximal broken sequence. `position` is inside of
/// `text`.
inline std::int32_t next(std::string_view text, std::size_t& position) {
    std::int32_t scalar = 0;
    U8_NEXT(text.data(), position, text.size(), scalar);
    return scalar;
}

inline void append(std::string& text, char32_t scalar) {
    char bytes[U8_MAX_LENGTH];
    std::int32_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, static_cast<std::int32_t>(scalar));
    text.append(bytes, static_cast<std::size_t>(length));
}

#pragma GCC diagnostic pop

} // namespace quillon::utf8
