#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/menu/raw_menu_item.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gtest/gtest.h>

#include <unordered_set>

namespace quillon {
namespace {

MenuEntry entryAt(std::vector<std::string> path, const char* character) {
    return {std::move(path), {Modifiers::command, Key::character(character)}, true};
}

AppSheet makeSheet() {
    return {
        "org.example.notes",
        "Notes",
        {entryAt({"File", "Save"}, "S"), entryAt({"Edit", "Copy"}, "C"), entryAt({"File", "Save"}, "D")},
        Instant(std::chrono::seconds(1000))};
}

TEST(AppSheet, FindsTheFirstEntryOfAnId) {
    const AppSheet sheet = makeSheet();
    EXPECT_EQ(sheet.entry("File › Save"), &sheet.entries[0]);
    EXPECT_EQ(sheet.entry("Edit › Copy"), &sheet.entries[1]);
}

TEST(AppSheet, FindsNothingUnderAnotherSeparatorOrName) {
    const AppSheet sheet = makeSheet();
    for (const char* id : {"File > Save", "File›Save", "file › save", "", "File", "Save"})
        EXPECT_EQ(sheet.entry(id), nullptr) << id;
    EXPECT_EQ(AppSheet().entry("File › Save"), nullptr);
}

TEST(AppSheet, GroupsItsEntries) {
    const AppSheet sheet = makeSheet();
    EXPECT_EQ(sheet.groups(), MenuGroup::group(sheet.entries));
    EXPECT_EQ(sheet.groups().front().entries.size(), 2u);
}

TEST(AppSheet, IsNeverReadByDefault) {
    EXPECT_EQ(AppSheet().readAt, distantPast);
}

TEST(AppSheet, ComparesAndHashesByAllFields) {
    const AppSheet sheet = makeSheet();
    AppSheet renamed = sheet;
    renamed.appName = "Other";
    AppSheet moved = sheet;
    moved.bundleID = "org.example.other";
    AppSheet later = sheet;
    later.readAt += std::chrono::seconds(1);
    AppSheet shorter = sheet;
    shorter.entries.pop_back();
    const std::unordered_set<AppSheet> set{sheet, sheet, renamed, moved, later, shorter};
    EXPECT_EQ(set.size(), 5u);
}

TEST(RawMenuItem, ComparesAndHashesByAllFields) {
    const RawMenuItem item{"Save", "S", 0, 0, 1, true, {}};
    std::vector<RawMenuItem> others(7, item);
    others[0].title = "Open";
    others[1].cmdChar.reset();
    others[2].cmdModifiers = 1;
    others[3].cmdGlyph.reset();
    others[4].cmdVirtualKey = 2;
    others[5].enabled = false;
    others[6].children = {item};
    std::unordered_set<RawMenuItem> set(others.begin(), others.end());
    set.insert(item);
    set.insert(item);
    EXPECT_EQ(set.size(), 8u);
}

TEST(RawMenuItem, HasTheShortcutOfItsFourFields) {
    RandomValues random(31);
    for (int round = 0; round < 500; ++round) {
        const RawMenuItem item = random.rawItem(0);
        EXPECT_EQ(
            item.shortcut(),
            Shortcut::fromAX({item.cmdChar, item.cmdModifiers, item.cmdGlyph, item.cmdVirtualKey}));
    }
}

} // namespace
} // namespace quillon
