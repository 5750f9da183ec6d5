#include "answers.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace quillon {

namespace {

/// As menus write it: the capital, where that is one letter too.
std::string capital(const std::string& character) {
    const std::string upper = unicode::toUpper(character);
    return unicode::toLower(upper) == unicode::toLower(character) ? upper : character;
}

} // namespace

Shortcut shownAs(const KeyStroke& stroke) {
    if (const auto special = SpecialKeys::fromKeyCode(stroke.keyCode))
        return {stroke.modifiers, Key::special(*special)};
    return {stroke.modifiers, Key::character(capital(stroke.characters))};
}

bool worksWindow(const KeyStroke& stroke) {
    constexpr std::array keys{SpecialKey::tab,   SpecialKey::returnKey, SpecialKey::enter,
                              SpecialKey::space, SpecialKey::escape,    SpecialKey::left,
                              SpecialKey::right, SpecialKey::up,        SpecialKey::down};
    const std::optional<SpecialKey> special = SpecialKeys::fromKeyCode(stroke.keyCode);
    return stroke.modifiers.subtracting(Modifiers::shift).isEmpty() && special
           && std::ranges::find(keys, *special) != keys.end();
}

} // namespace quillon
