#pragma once

#include <string>
#include <string_view>

/// The letters of ASCII alone, whatever the locale: for names in formats and protocols, not for what people
/// write. Bytes that are no such letter stay.
namespace quillon::ascii {

constexpr char toLower(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

constexpr char toUpper(char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

inline std::string toLower(std::string_view text) {
    std::string lower(text);
    for (char& byte : lower)
        byte = toLower(byte);
    return lower;
}

} // namespace quillon::ascii
