#include <quillon/kit/shortcut/key.h>

#include <gtest/gtest.h>

#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace quillon {
namespace {

TEST(Key, NamesPunctuation) {
    const std::vector<std::pair<std::string, std::string>> table{
        {",", "Comma"},        {".", "Period"},       {"/", "Slash"},         {";", "Semicolon"},
        {"'", "Quote"},        {"[", "Left Bracket"}, {"]", "Right Bracket"}, {"\\", "Backslash"},
        {"-", "Minus"},        {"=", "Equals"},       {"`", "Grave"},         {"+", "Plus"},
        {"?", "Question Mark"}};
    EXPECT_EQ(table.size(), 13u);
    for (const auto& [character, name] : table) {
        EXPECT_EQ(Key::character(character).name(), name);
        EXPECT_EQ(Key::character(character).glyph(), character);
    }
}

TEST(Key, IsCalledByItsCharacterOtherwise) {
    for (const char* character : {"A", "1", "!", "É", "", ",,", "{"}) {
        EXPECT_EQ(Key::character(character).name(), character);
        EXPECT_EQ(Key::character(character).glyph(), character);
    }
}

TEST(Key, OfASpecialKindHasItsNameAndGlyph) {
    for (const SpecialKey special : allSpecialKeys) {
        EXPECT_EQ(Key::special(special).name(), name(special));
        EXPECT_EQ(Key::special(special).glyph(), glyph(special));
    }
    EXPECT_EQ(Key::special(SpecialKey::backTab).name(), "Shift-Tab");
    EXPECT_EQ(Key::special(SpecialKey::f15).glyph(), "F15");
}

TEST(Key, TellsItsAlternatives) {
    const Key character = Key::character("S");
    EXPECT_EQ(*character.asCharacter(), "S");
    EXPECT_EQ(character.asSpecial(), nullptr);
    const Key special = Key::special(SpecialKey::tab);
    EXPECT_EQ(*special.asSpecial(), SpecialKey::tab);
    EXPECT_EQ(special.asCharacter(), nullptr);
}

TEST(Key, ACharacterNeverEqualsASpecialKey) {
    EXPECT_NE(Key::character("Space"), Key::special(SpecialKey::space));
    EXPECT_NE(Key::character("space"), Key::special(SpecialKey::space));
    EXPECT_EQ(Key::character("S"), Key::character("S"));
    EXPECT_NE(Key::character("S"), Key::character("s"));
    EXPECT_NE(Key::special(SpecialKey::left), Key::special(SpecialKey::right));
}

TEST(Key, HashesByAlternativeAndPayload) {
    std::unordered_set<Key> keys;
    for (const SpecialKey special : allSpecialKeys) {
        keys.insert(Key::special(special));
        keys.insert(Key::character(std::string(rawValue(special))));
    }
    EXPECT_EQ(keys.size(), 2 * specialKeyCount);
    const std::hash<Key> hash;
    EXPECT_EQ(hash(Key::character("S")), hash(Key::character("S")));
    EXPECT_NE(hash(Key::character("space")), hash(Key::special(SpecialKey::space)));
}

} // namespace
} // namespace quillon
