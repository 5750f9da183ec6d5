#include "key.h"

#include <quillon/kit/base/hash.h>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

struct PunctuationName {
    std::string_view character;
    std::string_view name;
};

constexpr std::array<PunctuationName, 13> punctuationNames{{
    {",", "Comma"},
    {".", "Period"},
    {"/", "Slash"},
    {";", "Semicolon"},
    {"'", "Quote"},
    {"[", "Left Bracket"},
    {"]", "Right Bracket"},
    {"\\", "Backslash"},
    {"-", "Minus"},
    {"=", "Equals"},
    {"`", "Grave"},
    {"+", "Plus"},
    {"?", "Question Mark"},
}};

std::string_view nameOfCharacter(std::string_view character) {
    const auto row = std::ranges::find(punctuationNames, character, &PunctuationName::character);
    return row == punctuationNames.end() ? character : row->name;
}

} // namespace

std::string_view Key::glyph() const {
    if (const SpecialKey* special = asSpecial())
        return quillon::glyph(*special);
    return *asCharacter();
}

std::string_view Key::name() const {
    if (const SpecialKey* special = asSpecial())
        return quillon::name(*special);
    return nameOfCharacter(*asCharacter());
}

} // namespace quillon

std::size_t std::hash<quillon::Key>::operator()(const quillon::Key& key) const noexcept {
    if (const quillon::SpecialKey* special = key.asSpecial())
        return quillon::hashOf(1, quillon::rawValue(*special));
    return quillon::hashOf(0, std::string_view(*key.asCharacter()));
}
