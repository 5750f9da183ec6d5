#include "key_binding.h"

#include "key_equivalents.h"

#include <quillon/kit/base/unicode.h>

#include <array>
#include <string>
#include <utility>

namespace quillon::atspi {
namespace {

constexpr std::int64_t noCommand = 8;
constexpr std::int64_t ejectGlyph = 140; // kMenuEjectGlyph

std::int64_t axMask(Modifiers modifiers) {
    std::int64_t mask = modifiers.contains(Modifiers::command) ? 0 : noCommand;
    if (modifiers.contains(Modifiers::shift))
        mask |= 1;
    if (modifiers.contains(Modifiers::option))
        mask |= 2;
    if (modifiers.contains(Modifiers::control))
        mask |= 4;
    return mask;
}

std::string utf8(char32_t scalar) {
    std::string bytes;
    const auto append = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    if (scalar < 0x80) {
        append(scalar);
    } else if (scalar < 0x800) {
        append(0xc0 | (scalar >> 6));
        append(0x80 | (scalar & 0x3f));
    } else if (scalar < 0x10000) {
        append(0xe0 | (scalar >> 12));
        append(0x80 | ((scalar >> 6) & 0x3f));
        append(0x80 | (scalar & 0x3f));
    } else {
        append(0xf0 | (scalar >> 18));
        append(0x80 | ((scalar >> 12) & 0x3f));
        append(0x80 | ((scalar >> 6) & 0x3f));
        append(0x80 | (scalar & 0x3f));
    }
    return bytes;
}

/// The character by which menus tell a special key; 0 for Eject, which has none.
char32_t characterOf(SpecialKey key) {
    constexpr char32_t f1Character = 0xf704;
    if (key >= SpecialKey::f1)
        return f1Character + static_cast<char32_t>(key) - static_cast<char32_t>(SpecialKey::f1);
    static constexpr std::array<std::pair<SpecialKey, char32_t>, 18> table{{
        {SpecialKey::returnKey, 0x0d},
        {SpecialKey::enter, 0x03},
        {SpecialKey::tab, 0x09},
        {SpecialKey::backTab, 0x19},
        {SpecialKey::space, 0x20},
        {SpecialKey::delete_, 0x08},
        {SpecialKey::forwardDelete, 0xf728},
        {SpecialKey::escape, 0x1b},
        {SpecialKey::clear, 0xf739},
        {SpecialKey::left, 0xf702},
        {SpecialKey::right, 0xf703},
        {SpecialKey::up, 0xf700},
        {SpecialKey::down, 0xf701},
        {SpecialKey::pageUp, 0xf72c},
        {SpecialKey::pageDown, 0xf72d},
        {SpecialKey::home, 0xf729},
        {SpecialKey::end, 0xf72b},
        {SpecialKey::help, 0xf746},
    }};
    for (const auto& [special, character] : table)
        if (special == key)
            return character;
    return 0;
}

bool isPrintable(char32_t character) {
    const bool isControl = character < 0x20 || (character >= 0x7f && character < 0xa0);
    const bool isSurrogate = character >= 0xd800 && character < 0xe000;
    const bool isPrivate = (character >= 0xe000 && character < 0xf900) || character >= 0xf0000;
    if (isControl || isSurrogate || isPrivate)
        return false;
    return character == U' ' || !unicode::isWhitespace(character);
}

} // namespace

AxKeyEquivalent specialKeyEquivalent(SpecialKey key, Modifiers modifiers) {
    AxKeyEquivalent equivalent;
    equivalent.modifiers = axMask(modifiers);
    if (const char32_t character = characterOf(key))
        equivalent.character = utf8(character);
    else
        equivalent.glyph = ejectGlyph;
    return equivalent;
}

AxKeyEquivalent characterEquivalent(char32_t character, Modifiers modifiers) {
    AxKeyEquivalent equivalent;
    if (!isPrintable(character))
        return equivalent;
    equivalent.character = utf8(character);
    equivalent.modifiers = axMask(modifiers);
    return equivalent;
}

AxKeyEquivalent keyEquivalent(const KeyBinding& binding) {
    switch (binding.family) {
    case ToolkitFamily::qt: return qtKeyEquivalent(binding.text, binding.title);
    case ToolkitFamily::gtk:
    case ToolkitFamily::other: break;
    }
    return gtkKeyEquivalent(binding.text);
}

} // namespace quillon::atspi
