#include "key_stroke.h"

#include "key_code.h"

#include <quillon/kit/base/hash.h>
#include <quillon/kit/base/unicode.h>

#include <string_view>

namespace quillon {

namespace {

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
    return same || (shiftWanted && KeyCodes::ofCharacter(character) == stroke.keyCode);
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
