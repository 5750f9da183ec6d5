#include "shortcut.h"

#include <quillon/kit/base/hash.h>
#include <quillon/kit/base/unicode.h>

namespace quillon {

namespace {

/// The key that a menu's key-equivalent text stands for: absent unless it is one character, and for blanks
/// and control characters that no special key has.
std::optional<Key> keyOfCharacter(std::string_view character) {
    if (!unicode::isOneCharacter(character))
        return std::nullopt;
    if (const auto special = SpecialKeys::fromCharacter(character))
        return Key::special(*special);
    const char32_t first = *unicode::firstScalar(character);
    if (first < 32 || unicode::isWhitespace(first))
        return std::nullopt;
    return Key::character(unicode::toUpper(character));
}

std::optional<Key> keyOf(const AxKeyEquivalent& equivalent) {
    if (equivalent.character) {
        if (auto key = keyOfCharacter(*equivalent.character))
            return key;
    }
    // Glyph 0, which means none, is in no table.
    if (const auto special = equivalent.glyph ? SpecialKeys::fromAXGlyph(*equivalent.glyph) : std::nullopt)
        return Key::special(*special);
    if (const auto special =
            equivalent.virtualKey ? SpecialKeys::fromKeyCode(*equivalent.virtualKey) : std::nullopt)
        return Key::special(*special);
    return std::nullopt;
}

} // namespace

std::optional<Shortcut> Shortcut::fromAX(const AxKeyEquivalent& equivalent) {
    std::optional<Key> key = keyOf(equivalent);
    if (!key)
        return std::nullopt;
    return Shortcut{Modifiers::fromAXMask(equivalent.modifiers.value_or(0)), *std::move(key)};
}

std::string Shortcut::display() const {
    return modifiers.glyphs().append(key.glyph());
}

std::string Shortcut::spoken() const {
    std::string result;
    for (const std::string& word : modifiers.words())
        result.append(word).append(" ");
    return result.append(key.name());
}

} // namespace quillon

std::size_t std::hash<quillon::Shortcut>::operator()(const quillon::Shortcut& shortcut) const noexcept {
    return quillon::hashOf(shortcut.modifiers, shortcut.key);
}
