#include "key_code.h"

#include <array>
#include <cstddef>

namespace quillon::KeyCodes {

namespace {

/// By virtual key code (`kVK_ANSI_…`); "" for one that no key with a character has.
constexpr std::array<std::string_view, 51> characters{
    "A", "S", "D", "F", "H", "G", "Z", "X", "C",  "V", "",  "B", "Q", "W", "E", "R", "Y",
    "T", "1", "2", "3", "4", "6", "5", "=", "9",  "7", "-", "8", "0", "]", "O", "U", "[",
    "I", "P", "",  "L", "J", "'", "K", ";", "\\", ",", "/", "N", "M", ".", "",  "",  "`",
};

constexpr std::int64_t lastCode = 127;

} // namespace

std::optional<std::int64_t> of(SpecialKey key) {
    for (std::int64_t code = 0; code <= lastCode; ++code) {
        if (SpecialKeys::fromKeyCode(code) == key)
            return code;
    }
    return std::nullopt;
}

std::optional<std::int64_t> ofCharacter(std::string_view character) {
    for (std::size_t code = 0; code < characters.size(); ++code) {
        if (!character.empty() && characters[code] == character)
            return static_cast<std::int64_t>(code);
    }
    return std::nullopt;
}

} // namespace quillon::KeyCodes
