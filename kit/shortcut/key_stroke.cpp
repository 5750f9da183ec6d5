#include "key_stroke.h"

#include <quillon/kit/base/hash.h>
#include <quillon/kit/base/unicode.h>

#include <array>
#include <string_view>

namespace quillon {

namespace {

/// What the keys give without modifiers on an ANSI keyboard, letters in upper case, by macOS virtual key code
/// (`kVK_ANSI_…`); "" for a code that no such key has.
constexpr std::array<std::string_view, 51> baseCharacters{
    "A", "S", "D", "F", "H", "G", "Z", "X", "C",  "V", "",  "B", "Q", "W", "E", "R", "Y",
    "T", "1", "2", "3", "4", "6", "5", "=", "9",  "7", "-", "8", "0", "]", "O", "U", "[",
    "I", "P", "",  "L", "J", "'", "K", ";", "\\", ",", "/", "N", "M", ".", "",  "",  "`",
};

bool isOnBaseKey(std::int64_t keyCode, std::string_view character) {
    if (keyCode < 0 || keyCode >= static_cast<std::int64_t>(baseCharacters.size()))
        return false;
    const std::string_view base = baseCharacters[static_cast<std::size_t>(keyCode)];
    return !base.empty() && base == character;
}

/// The rule for character shortcuts, the other modifiers agreeing.
bool matchesCharacter(const KeyStroke& stroke, std::string_view character, bool shiftWanted) {
    if (SpecialKeys::fromKeyCode(stroke.keyCode))
        return false;
    const bool shiftHeld = stroke.modifiers.contains(Modifiers::shift);
    const bool same = unicode::toUpper(stroke.characters) == character;
    if (unicode::isLetter(character))
        return same && shiftHeld == shiftWanted;
    if (!shiftHeld)
        return same && !shiftWanted;
    return same || (shiftWanted && isOnBaseKey(stroke.keyCode, character));
}

} // namespace

bool KeyStroke::matches(const Shortcut& shortcut) const {
    constexpr Modifiers compared{Modifiers::control, Modifiers::option, Modifiers::command};
    if (modifiers.intersection(compared) != shortcut.modifiers.intersection(compared))
        return false;
    const bool shiftWanted = shortcut.modifiers.contains(Modifiers::shift);
    if (const SpecialKey* special = shortcut.key.asSpecial())
        return SpecialKeys::fromKeyCode(keyCode) == *special
               && modifiers.contains(Modifiers::shift) == shiftWanted;
    return matchesCharacter(*this, *shortcut.key.asCharacter(), shiftWanted);
}

} // namespace quillon

std::size_t std::hash<quillon::KeyStroke>::operator()(const quillon::KeyStroke& stroke) const noexcept {
    return quillon::hashOf(stroke.characters, stroke.keyCode, stroke.modifiers);
}
