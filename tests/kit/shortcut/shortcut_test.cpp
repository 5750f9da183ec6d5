#include <quillon/kit/shortcut/shortcut.h>

#include <gtest/gtest.h>

#include <string>
#include <unordered_set>
#include <vector>

namespace quillon {
namespace {

using namespace std::string_literals;

constexpr auto none = std::nullopt;

/// The display of what the attributes stand for, "none" for nothing.
std::string displayOf(const AxKeyEquivalent& equivalent) {
    const std::optional<Shortcut> shortcut = Shortcut::fromAX(equivalent);
    return shortcut ? shortcut->display() : "none";
}

TEST(ShortcutFromAX, TakesTheCharacterInUpperCase) {
    EXPECT_EQ(displayOf({.character = "s"}), "⌘S");
    EXPECT_EQ(displayOf({.character = "s", .modifiers = 1}), "⇧⌘S");
    EXPECT_EQ(displayOf({.character = "S", .modifiers = 8}), "S");
    EXPECT_EQ(displayOf({.character = "é", .modifiers = 0}), "⌘É");
    EXPECT_EQ(displayOf({.character = "ß", .modifiers = 0}), "⌘SS");
    EXPECT_EQ(displayOf({.character = "/", .modifiers = 4}), "⌃⌘/");
    EXPECT_EQ(displayOf({.character = "e\u0301", .modifiers = 0}), "⌘E\u0301");
}

TEST(ShortcutFromAX, WithoutAMaskMeansCommandAlone) {
    const auto shortcut = Shortcut::fromAX({.character = "s"});
    ASSERT_TRUE(shortcut);
    EXPECT_EQ(shortcut->modifiers, Modifiers::command);
    EXPECT_EQ(shortcut->spoken(), "Command S");
}

TEST(ShortcutFromAX, RecognisesSpecialKeysByCharacter) {
    EXPECT_EQ(displayOf({.character = "\r", .modifiers = 0}), "⌘↩");
    EXPECT_EQ(displayOf({.character = " ", .modifiers = 4}), "⌃⌘Space");
    EXPECT_EQ(displayOf({.character = "\x1b", .modifiers = 2}), "⌥⌘⎋");
    EXPECT_EQ(displayOf({.character = "\uf704", .modifiers = 10}), "⌥F1");
    EXPECT_EQ(displayOf({.character = "\x7f", .modifiers = 8}), "⌫");
}

TEST(ShortcutFromAX, FallsBackToTheGlyphAndThenToTheVirtualKey) {
    EXPECT_EQ(displayOf({none, 0, 4, none}), "⌘⌤");
    EXPECT_EQ(displayOf({"", 0, 0, 122}), "⌘F1");
    EXPECT_EQ(displayOf({none, 0, 999, 122}), "⌘F1") << "an unknown glyph says nothing";
    EXPECT_EQ(displayOf({none, none, none, 123}), "⌘←");
}

TEST(ShortcutFromAX, PrefersCharacterToGlyphToVirtualKey) {
    EXPECT_EQ(displayOf({"S", 0, 23, 122}), "⌘S");
    EXPECT_EQ(displayOf({none, 0, 23, 122}), "⌘⌫");
}

TEST(ShortcutFromAX, IgnoresATextThatIsNotOneCharacter) {
    EXPECT_EQ(displayOf({"ab", 0, 23, none}), "⌘⌫");
    EXPECT_EQ(displayOf({"ab", 0, 0, 122}), "⌘F1");
    EXPECT_EQ(displayOf({"ab", 0, none, none}), "none");
    EXPECT_EQ(displayOf({"", 0, none, none}), "none");
}

TEST(ShortcutFromAX, IgnoresBlanksAndControlCharacters) {
    for (const char* character : {"\n", "\u00a0", "\u2003", "\x01", "\x1f", "\u2028", "\r\n"}) {
        EXPECT_EQ(displayOf({character, 0, none, none}), "none");
        EXPECT_EQ(displayOf({character, 0, 2, none}), "⌘⇥") << "goes on to the glyph";
    }
    EXPECT_EQ(displayOf({"\0"s, 0, none, none}), "none");
}

TEST(ShortcutFromAX, HasNoShortcutForALettersVirtualKey) {
    EXPECT_EQ(displayOf({none, 0, 0, 0}), "none");
    EXPECT_EQ(displayOf({none, 3, none, 1}), "none");
    EXPECT_EQ(displayOf({none, 0, none, none}), "none");
    EXPECT_EQ(displayOf({}), "none");
    EXPECT_EQ(displayOf({none, 0, -1, -5}), "none");
}

TEST(ShortcutFromAX, MakesBrokenTextStorable) {
    EXPECT_EQ(displayOf({"\xff", 0, none, none}), "⌘\ufffd");
}

TEST(Shortcut, IsShownAndReadAloud) {
    struct Row {
        Shortcut shortcut;
        const char* display;
        const char* spoken;
    };
    using M = Modifiers;
    for (const Row& row : std::vector<Row>{
             {{M::shift | M::command, Key::character("S")}, "⇧⌘S", "Shift Command S"},
             {{M::command, Key::special(SpecialKey::returnKey)}, "⌘↩", "Command Return"},
             {{M::control | M::command, Key::special(SpecialKey::space)}, "⌃⌘Space", "Control Command Space"},
             {{M::option, Key::special(SpecialKey::f5)}, "⌥F5", "Option F5"},
             {{M::command, Key::character(",")}, "⌘,", "Command Comma"},
             {{M::option, Key::special(SpecialKey::backTab)}, "⌥⇤", "Option Shift-Tab"},
             {{M(), Key::special(SpecialKey::delete_)}, "⌫", "Delete"},
             {{M{M::control, M::option, M::shift, M::command}, Key::character("K")},
              "⌃⌥⇧⌘K",
              "Control Option Shift Command K"}}) {
        EXPECT_EQ(row.shortcut.display(), row.display);
        EXPECT_EQ(row.shortcut.spoken(), row.spoken);
    }
}

TEST(Shortcut, ComparesAndHashesByBothFields) {
    const Shortcut save{Modifiers::command, Key::character("S")};
    const std::unordered_set<Shortcut> set{
        save, save, {Modifiers::shift, Key::character("S")}, {Modifiers::command, Key::character("T")}};
    EXPECT_EQ(set.size(), 3u);
}

} // namespace
} // namespace quillon
