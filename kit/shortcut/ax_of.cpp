#include "ax_of.h"

#include <quillon/kit/base/unicode.h>

#include <array>
#include <map>
#include <string>
#include <utility>

namespace quillon {

namespace {

bool isPrintable(char32_t character) {
    const bool isControl = character < 0x20 || (character >= 0x7f && character < 0xa0);
    const bool isSurrogate = character >= 0xd800 && character < 0xe000;
    const bool isPrivate = (character >= 0xe000 && character < 0xf900) || character >= 0xf0000;
    if (isControl || isSurrogate || isPrivate)
        return false;
    return character == U' ' || !unicode::isWhitespace(character);
}

/// The characters whose upper case is several characters, by that upper case: "SS" comes of "ß".
std::map<std::string, std::string, std::less<>> charactersOfLongCapitals() {
    // Where Unicode's SpecialCasing.txt has such characters.
    constexpr std::array<std::pair<char32_t, char32_t>, 4> ranges{
        {{0xdf, 0x149}, {0x587, 0x587}, {0x1e96, 0x1ffc}, {0xfb00, 0xfb17}}};
    std::map<std::string, std::string, std::less<>> characters;
    for (const auto& [first, last] : ranges) {
        for (char32_t scalar = first; scalar <= last; ++scalar) {
            std::string character = unicode::encoded(scalar);
            std::string capital = unicode::toUpper(character);
            if (!unicode::isOneCharacter(capital))
                characters.emplace(std::move(capital), std::move(character));
        }
    }
    return characters;
}

/// A text whose upper case is `key`.
std::string characterBehind(const std::string& key) {
    static const auto characters = charactersOfLongCapitals();
    const auto found = characters.find(key);
    return found == characters.end() ? key : found->second;
}

AxKeyEquivalent equivalentOf(const Shortcut& shortcut) {
    if (const SpecialKey* special = shortcut.key.asSpecial())
        return axOf(*special, shortcut.modifiers);
    return {
        .character = characterBehind(*shortcut.key.asCharacter()), .modifiers = shortcut.modifiers.axMask()};
}

} // namespace

AxKeyEquivalent axOf(const Shortcut& shortcut) {
    AxKeyEquivalent equivalent = equivalentOf(shortcut);
    return Shortcut::fromAX(equivalent) == shortcut ? equivalent : AxKeyEquivalent();
}

AxKeyEquivalent axOf(SpecialKey key, Modifiers modifiers) {
    AxKeyEquivalent equivalent{.modifiers = modifiers.axMask()};
    if (const auto character = SpecialKeys::characterOf(key))
        equivalent.character = unicode::encoded(*character);
    else
        equivalent.glyph = SpecialKeys::axGlyphOf(key);
    return equivalent;
}

AxKeyEquivalent axOfCharacter(char32_t character, Modifiers modifiers) {
    if (!isPrintable(character))
        return {};
    return {.character = unicode::encoded(character), .modifiers = modifiers.axMask()};
}

} // namespace quillon
