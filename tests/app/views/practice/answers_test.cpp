#include <quillon/app/views/practice/answers.h>
#include <quillon/kit/shortcut/key_code.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

KeyStroke typed(std::string characters, Modifiers held = {}) {
    return {.characters = std::move(characters), .keyCode = KeyCodes::isoSection, .modifiers = held};
}

KeyStroke named(SpecialKey key, Modifiers held = {}) {
    return {.characters = {}, .keyCode = KeyCodes::of(key).value_or(-1), .modifiers = held};
}

TEST(AnswersTest, AreShownAsMenusShowThem) {
    EXPECT_EQ(shownAs(typed("s", Modifiers::control | Modifiers::shift)).display(), "⌃⇧S");
    EXPECT_EQ(shownAs(typed("ö", Modifiers::control)).display(), "⌃Ö");
    EXPECT_EQ(shownAs(typed("ß", Modifiers::control)).display(), "⌃ß") << "its capital is two letters";
    EXPECT_EQ(shownAs(typed("?", Modifiers::control | Modifiers::shift)).display(), "⌃⇧?");
    EXPECT_EQ(shownAs(named(SpecialKey::f5)).display(), "F5");
    EXPECT_EQ(shownAs(named(SpecialKey::forwardDelete, Modifiers::option)).display(), "⌥⌦");
}

TEST(AnswersTest, KeysThatWorkTheWindowAreNone) {
    for (const SpecialKey key :
         {SpecialKey::tab, SpecialKey::returnKey, SpecialKey::enter, SpecialKey::space, SpecialKey::escape,
          SpecialKey::left, SpecialKey::right, SpecialKey::up, SpecialKey::down}) {
        EXPECT_TRUE(worksWindow(named(key))) << name(key);
        EXPECT_TRUE(worksWindow(named(key, Modifiers::shift))) << name(key);
        EXPECT_FALSE(worksWindow(named(key, Modifiers::control))) << name(key);
        EXPECT_FALSE(worksWindow(named(key, Modifiers::shift | Modifiers::command))) << name(key);
    }
    EXPECT_FALSE(worksWindow(typed("s")));
    EXPECT_FALSE(worksWindow(named(SpecialKey::f1)));
}

} // namespace
} // namespace quillon
