#include <quillon/app/core/typed_watcher.h>
#include <quillon/app/platform/fake/fake_typed_keys.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

MenuEntry entry(const std::string& title, Modifiers modifiers, const std::string& character) {
    return {.path = {"File", title}, .shortcut = Shortcut(modifiers, Key::character(character))};
}

class TypedWatcherTest : public testing::Test {
  protected:
    TypedWatcherTest() {
        watcher.entries = [this] {
            ++asked;
            return std::span<const MenuEntry>(sheet);
        };
        watcher.onTyped = [this](const MenuEntry& one) { typed.emplace_back(one.title()); };
        watcher.start();
    }
    void press(const std::string& characters, Modifiers modifiers) {
        keys.press({.characters = characters, .keyCode = 1, .modifiers = modifiers});
    }

    using Titles = std::vector<std::string>;

    FakeTypedKeys keys;
    TypedWatcher watcher{keys};
    std::vector<MenuEntry> sheet{
        entry("Save", Modifiers::control, "S"),
        entry("Save As", {Modifiers::control, Modifiers::shift}, "S"),
        entry("Save Too", Modifiers::control, "S"),
        entry("Send", Modifiers::command, "S"),
        entry("Sketch", Modifiers::option, "S"),
    };
    Titles typed;
    int asked = 0;
};

TEST_F(TypedWatcherTest, TellsTheCommandWhoseShortcutWasTyped) {
    press("s", Modifiers::command);
    press("S", {Modifiers::control, Modifiers::shift});
    EXPECT_EQ(typed, (Titles{"Send", "Save As"}));
}

TEST_F(TypedWatcherTest, TellsOnlyTheFirstOfTwoWithTheSameShortcut) {
    press("s", Modifiers::control);
    EXPECT_EQ(typed, Titles{"Save"});
}

TEST_F(TypedWatcherTest, LooksAtNoPressWithoutCommandOrControl) {
    press("s", {});
    press("S", Modifiers::shift);
    press("s", Modifiers::option);
    press("S", {Modifiers::option, Modifiers::shift});
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(typed, Titles{});
}

TEST_F(TypedWatcherTest, TellsNothingWithoutAMatch) {
    press("q", Modifiers::control);
    press("s", {Modifiers::control, Modifiers::option});
    sheet.clear();
    press("s", Modifiers::control);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(typed, Titles{});
}

TEST_F(TypedWatcherTest, ListensOnlyWhileItIsStarted) {
    watcher.start();
    EXPECT_EQ(keys.monitors(), 1U);
    EXPECT_TRUE(watcher.isWatching());
    watcher.stop();
    EXPECT_EQ(keys.monitors(), 0U);
    EXPECT_FALSE(watcher.isWatching());
}

TEST_F(TypedWatcherTest, NeedsNeitherEntriesNorAnybodyToTell) {
    watcher.onTyped = nullptr;
    press("s", Modifiers::control);
    watcher.entries = nullptr;
    watcher.onTyped = [this](const MenuEntry& one) { typed.emplace_back(one.title()); };
    press("s", Modifiers::control);
    EXPECT_EQ(typed, Titles{});
}

} // namespace
} // namespace quillon
