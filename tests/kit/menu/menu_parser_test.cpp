#include <quillon/kit/base/unicode.h>
#include <quillon/kit/menu/menu_parser.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <set>
#include <string>
#include <utility>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

RawMenuItem item(std::string title, std::string character = "k") {
    return {.title = std::move(title), .cmdChar = std::move(character), .cmdModifiers = 0};
}

RawMenuItem menu(std::string title, std::vector<RawMenuItem> children) {
    return {.title = std::move(title), .children = std::move(children)};
}

std::vector<std::string> idsOf(const std::vector<RawMenuItem>& bar, int maxDepth = 4) {
    std::vector<std::string> ids;
    for (const MenuEntry& entry : MenuParser::entries(bar, maxDepth))
        ids.push_back(entry.id());
    return ids;
}

TEST(MenuParser, LeavesOutAFirstMenuCalledAppleOrNothing) {
    for (const char* title : {"Apple", ""}) {
        EXPECT_THAT(
            idsOf({menu(title, {item("About")}), menu("File", {item("Save")})}), ElementsAre("File › Save"));
        EXPECT_THAT(
            idsOf({menu("File", {item("Save")}), menu("Apple", {item("Pie")})}),
            ElementsAre("File › Save", "Apple › Pie"));
    }
    EXPECT_THAT(idsOf({menu(" Apple", {item("Pie")})}), ElementsAre("Apple › Pie")) << "compared as read";
    EXPECT_THAT(idsOf({menu("apple", {item("Pie")})}), ElementsAre("apple › Pie"));
}

TEST(MenuParser, TrimsMenusOfBlanksAndLeavesOutTheBlank) {
    EXPECT_THAT(
        idsOf(
            {menu("File", {item("A")}), menu("  \t", {item("B")}), menu("", {item("C")}),
             menu(" \u00a0Edit\t", {item("D")})}),
        ElementsAre("File › A", "Edit › D"));
    EXPECT_THAT(idsOf({menu("File\n", {item("A")})}), ElementsAre("File\n › A"))
        << "line breaks stay in menus";
}

TEST(MenuParser, CleansTheTitlesOfItems) {
    EXPECT_THAT(
        idsOf({menu(
            "File", {item("Save\u00a0As…"), item("\n New \r\n"), item("\u00a0Two\u00a0\u00a0blanks\u00a0"),
                     item("bro\xffken")})}),
        ElementsAre("File › Save As…", "File › New", "File › Two  blanks", "File › bro\ufffdken"));
}

TEST(MenuParser, LeavesOutUntitledItemsAndWhatIsBelowThem) {
    EXPECT_THAT(
        idsOf({menu("File", {item(""), item(" \n\u00a0"), menu("", {item("Lost")}), item("Kept")})}),
        ElementsAre("File › Kept"));
}

TEST(MenuParser, ReadsSubmenusInPlace) {
    EXPECT_THAT(
        idsOf({menu("Edit", {item("Cut"), menu("Find", {item("Next"), item("Previous")}), item("Paste")})}),
        ElementsAre("Edit › Cut", "Edit › Find › Next", "Edit › Find › Previous", "Edit › Paste"));
}

TEST(MenuParser, ASubmenuIsNoCommandWhateverKeysItHas) {
    RawMenuItem submenu = item("Find", "f");
    submenu.children = {item("Next")};
    EXPECT_THAT(idsOf({menu("Edit", {submenu})}), ElementsAre("Edit › Find › Next"));
    submenu.children = {{.title = "No keys"}};
    EXPECT_THAT(idsOf({menu("Edit", {submenu})}), IsEmpty());
}

TEST(MenuParser, NeverReadsTheKeysOfAMenuItself) {
    RawMenuItem top = item("File", "f");
    EXPECT_THAT(idsOf({top}), IsEmpty());
    top.enabled = false;
    top.children = {item("Save")};
    EXPECT_THAT(idsOf({top}), ElementsAre("File › Save"));
}

TEST(MenuParser, LeavesOutItemsWithoutAShortcut) {
    EXPECT_THAT(
        idsOf({menu(
            "File", {{.title = "Rename…"},
                     {.title = "Letter", .cmdVirtualKey = 1},
                     {.title = "Masked", .cmdModifiers = 3},
                     {.title = "F1", .cmdVirtualKey = 122}})}),
        ElementsAre("File › F1"));
}

TEST(MenuParser, TheFirstOfSeveralNamesakesWins) {
    const auto entries = MenuParser::entries(
        std::vector{
            menu("File", {item("Save", "s"), item("Save ", "d"), item("Save", "e")}),
            menu("File", {item("Save", "x")}), menu("Edit", {item("Save", "y")})},
        4);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].shortcut.display(), "⌘S");
    EXPECT_EQ(entries[1].id(), "Edit › Save");
}

TEST(MenuParser, ANamesakeWithoutAShortcutDoesNotCount) {
    EXPECT_THAT(idsOf({menu("File", {{.title = "Save"}, item("Save")})}), ElementsAre("File › Save"));
}

TEST(MenuParser, KeepsDisabledItemsAsDisabled) {
    RawMenuItem paste = item("Paste");
    paste.enabled = false;
    const auto entries = MenuParser::entries(std::vector{menu("Edit", {paste, item("Copy")})}, 4);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_FALSE(entries[0].enabled);
    EXPECT_TRUE(entries[1].enabled);
}

TEST(MenuParser, StopsBelowItsDepth) {
    const std::vector<RawMenuItem> bar{menu(
        "1",
        {item("a"),
         menu("2", {item("b"), menu("3", {item("c"), menu("4", {item("d"), menu("5", {item("e")})})})})})};
    EXPECT_THAT(idsOf(bar, 1), ElementsAre("1 › a"));
    EXPECT_THAT(idsOf(bar, 2), ElementsAre("1 › a", "1 › 2 › b"));
    EXPECT_THAT(idsOf(bar, 4), ElementsAre("1 › a", "1 › 2 › b", "1 › 2 › 3 › c", "1 › 2 › 3 › 4 › d"));
    EXPECT_EQ(idsOf(bar, 5).size(), 5u);
    EXPECT_THAT(idsOf(bar, 0), ElementsAre("1 › a")) << "a menu's own items are read at any depth";
}

TEST(MenuParser, AnEmptyMenuBarHasNoEntries) {
    EXPECT_THAT(idsOf({}), IsEmpty());
    EXPECT_THAT(idsOf({menu("File", {})}), IsEmpty());
}

TEST(MenuParser, GivesCleanUniqueEntriesForAnyTree) {
    RandomValues random(41);
    std::size_t total = 0;
    for (int round = 0; round < 300; ++round) {
        const std::vector<RawMenuItem> bar = random.menuBar();
        std::set<std::string> ids;
        for (const MenuEntry& entry : MenuParser::entries(bar, 4)) {
            ++total;
            EXPECT_TRUE(ids.insert(entry.id()).second);
            EXPECT_GE(entry.path.size(), 2u);
            EXPECT_LE(entry.path.size(), 5u);
            for (std::size_t i = 1; i < entry.path.size(); ++i) {
                EXPECT_EQ(unicode::trimmed(entry.path[i], unicode::Trim::whitespace), entry.path[i]);
                EXPECT_EQ(entry.path[i].find("\u00a0"), std::string::npos);
                EXPECT_FALSE(entry.path[i].empty());
            }
        }
    }
    EXPECT_GT(total, 1000u) << "the trees must be worth reading";
}

TEST(MenuParser, DeeperReadingOnlyAddsEntries) {
    RandomValues random(42);
    for (int round = 0; round < 100; ++round) {
        const std::vector<RawMenuItem> bar = random.menuBar();
        std::vector<std::string> shallow = idsOf(bar, 1);
        for (int depth = 2; depth <= 6; ++depth) {
            const std::vector<std::string> deep = idsOf(bar, depth);
            auto from = deep.begin();
            for (const std::string& id : shallow) {
                from = std::find(from, deep.end(), id);
                ASSERT_NE(from, deep.end()) << "order kept, nothing lost: " << id;
            }
            shallow = deep;
        }
    }
}

} // namespace
} // namespace quillon
