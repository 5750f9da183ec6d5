#include <quillon/kit/base/unicode.h>
#include <quillon/kit/shortcut/ax_of.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace quillon {
namespace {

constexpr char32_t afterLastScalar = 0x110000;
constexpr std::int64_t everyModifier = 15;

TEST(AxOf, LeadsBackForEverySpecialKeyWithEveryModifier) {
    for (const SpecialKey key : allSpecialKeys)
        for (std::int64_t bits = 0; bits <= everyModifier; ++bits) {
            const Shortcut shortcut{Modifiers(bits), Key::special(key)};
            EXPECT_EQ(Shortcut::fromAX(axOf(shortcut)), shortcut) << shortcut.display();
        }
}

/// Every shortcut that a menu can tell by one scalar, "ß", whose upper case is two characters, among them.
TEST(AxOf, LeadsBackForEveryCharacterThatAMenuCanTell) {
    int told = 0;
    for (char32_t scalar = 0; scalar < afterLastScalar; ++scalar) {
        const auto mask = static_cast<std::int64_t>(scalar % (everyModifier + 1));
        const auto shortcut = Shortcut::fromAX({.character = unicode::encoded(scalar), .modifiers = mask});
        if (!shortcut)
            continue;
        ++told;
        ASSERT_EQ(Shortcut::fromAX(axOf(*shortcut)), shortcut) << static_cast<std::uint32_t>(scalar);
    }
    EXPECT_GT(told, 1'000'000);
}

TEST(AxOf, LeadsBackForACharacterOfSeveralScalars) {
    const Shortcut shortcut{Modifiers::command, Key::character("E\u0301")};
    EXPECT_EQ(Shortcut::fromAX(axOf(shortcut)), shortcut);
}

TEST(AxOf, TellsAMaskWithEveryKeyAndTheVirtualKeyNever) {
    for (const SpecialKey key : allSpecialKeys) {
        const AxKeyEquivalent equivalent = axOf(key, Modifiers::command);
        EXPECT_EQ(equivalent.modifiers, 0);
        EXPECT_EQ(equivalent.virtualKey, std::nullopt);
        EXPECT_EQ(equivalent.character.has_value(), key != SpecialKey::eject);
        EXPECT_EQ(equivalent.glyph.has_value(), key == SpecialKey::eject);
    }
}

TEST(AxOf, TellsNothingOfAShortcutThatNoMenuCanHave) {
    for (const char* key : {"", "s", "AB", "\t", "\u00a0", " ", "\xff"})
        EXPECT_EQ(axOf({Modifiers::command, Key::character(key)}), AxKeyEquivalent()) << key;
    EXPECT_EQ(axOf({Modifiers(16), Key::character("S")}), AxKeyEquivalent()) << "a modifier without a name";
}

TEST(AxOfCharacter, TakesTheCharacterInAnyCase) {
    const auto shortcutOf = [](char32_t character) {
        return Shortcut::fromAX(axOfCharacter(character, Modifiers::control));
    };
    EXPECT_EQ(shortcutOf(U's')->display(), "⌃S");
    EXPECT_EQ(shortcutOf(U'S')->display(), "⌃S");
    EXPECT_EQ(shortcutOf(U'ß')->display(), "⌃SS");
    EXPECT_EQ(shortcutOf(U' ')->display(), "⌃Space");
}

TEST(AxOfCharacter, TellsNothingOfWhatCannotBeSeen) {
    for (const char32_t character :
         {0x00u, 0x0du, 0x1bu, 0x7fu, 0x9bu, 0xa0u, 0x2028u, 0xd800u, 0xe000u, 0xf704u, 0xf0000u})
        EXPECT_EQ(axOfCharacter(character, Modifiers::control), AxKeyEquivalent())
            << static_cast<std::uint32_t>(character);
}

TEST(AxMask, LeadsBackForEverySetOfModifiers) {
    for (std::int64_t bits = 0; bits <= everyModifier; ++bits)
        EXPECT_EQ(Modifiers::fromAXMask(Modifiers(bits).axMask()), Modifiers(bits));
}

} // namespace
} // namespace quillon
