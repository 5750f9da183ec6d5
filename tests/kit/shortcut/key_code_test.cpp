#include <quillon/kit/shortcut/key_code.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

namespace quillon {
namespace {

TEST(KeyCodeTest, EveryNamedKeyHasTheCodeThatNamesIt) {
    for (const SpecialKey key : allSpecialKeys) {
        const auto code = KeyCodes::of(key);
        const bool hasNone = key == SpecialKey::backTab || key == SpecialKey::eject;
        ASSERT_EQ(code.has_value(), !hasNone) << name(key);
        if (code) {
            EXPECT_EQ(SpecialKeys::fromKeyCode(*code), key) << name(key);
        }
    }
}

TEST(KeyCodeTest, CharactersOfAnAnsiKeyboardHaveACodeThatNamesNoKey) {
    std::set<std::int64_t> codes;
    for (const char character : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-=[]\\;',./`")) {
        const auto code = KeyCodes::ofCharacter(std::string(1, character));
        ASSERT_TRUE(code) << character;
        EXPECT_EQ(SpecialKeys::fromKeyCode(*code), std::nullopt) << character;
        codes.insert(*code);
    }
    EXPECT_EQ(codes.size(), 47U);
    EXPECT_FALSE(codes.contains(KeyCodes::isoSection));
    EXPECT_EQ(KeyCodes::ofCharacter("A"), 0);
    EXPECT_EQ(KeyCodes::ofCharacter("`"), 50);
}

TEST(KeyCodeTest, WhatNoAnsiKeyGivesHasNoCode) {
    for (const std::string_view character : {"", "a", "?", "Ö", "AB"})
        EXPECT_EQ(KeyCodes::ofCharacter(character), std::nullopt) << character;
    EXPECT_EQ(SpecialKeys::fromKeyCode(KeyCodes::isoSection), std::nullopt);
}

} // namespace
} // namespace quillon
