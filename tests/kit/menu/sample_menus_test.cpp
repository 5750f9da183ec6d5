#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/menu/shortcut_search.h>

#include <gmock/gmock.h>

#include <string>
#include <tuple>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsNull;
using testing::NotNull;

/// Every entry of the sample, in menu order, with its shortcut.
const std::vector<std::pair<std::string, std::string>> allEntries{
    {"Sketchpad › Settings…", "⌘,"},
    {"Sketchpad › Hide Sketchpad", "⌘H"},
    {"Sketchpad › Hide Others", "⌥⌘H"},
    {"Sketchpad › Quit Sketchpad", "⌘Q"},
    {"File › New Drawing", "⌘N"},
    {"File › New from Template…", "⇧⌘N"},
    {"File › Open…", "⌘O"},
    {"File › Close", "⌘W"},
    {"File › Save", "⌘S"},
    {"File › Duplicate", "⇧⌘S"},
    {"File › Export…", "⇧⌘E"},
    {"File › Page Setup…", "⇧⌘P"},
    {"File › Print…", "⌘P"},
    {"Edit › Undo", "⌘Z"},
    {"Edit › Redo", "⇧⌘Z"},
    {"Edit › Cut", "⌘X"},
    {"Edit › Copy", "⌘C"},
    {"Edit › Paste", "⌘V"},
    {"Edit › Paste in Place", "⌥⇧⌘V"},
    {"Edit › Delete", "⌫"},
    {"Edit › Select All", "⌘A"},
    {"Edit › Deselect All", "⇧⌘A"},
    {"Edit › Find › Find…", "⌘F"},
    {"Edit › Find › Find Next", "⌘G"},
    {"Edit › Find › Find Previous", "⇧⌘G"},
    {"Edit › Emoji & Symbols", "⌃⌘Space"},
    {"Object › Group", "⌥⌘G"},
    {"Object › Ungroup", "⌥⇧⌘G"},
    {"Object › Arrange › Bring to Front", "⇧⌘]"},
    {"Object › Arrange › Bring Forward", "⌘]"},
    {"Object › Arrange › Send Backward", "⌘["},
    {"Object › Arrange › Send to Back", "⇧⌘["},
    {"Object › Lock", "⌘L"},
    {"Object › Unlock All", "⌥⌘L"},
    {"Object › Flip Horizontal", "⇧⌘H"},
    {"Object › Nudge Left", "←"},
    {"Object › Rotate 90°", "⌥⌘R"},
    {"Format › Font › Show Fonts", "⌘T"},
    {"Format › Font › Bold", "⌘B"},
    {"Format › Font › Italic", "⌘I"},
    {"Format › Font › Underline", "⌘U"},
    {"Format › Font › Bigger", "⌘+"},
    {"Format › Font › Smaller", "⌘-"},
    {"Format › Text › Align Left", "⌘{"},
    {"Format › Text › Center", "⌘|"},
    {"Format › Text › Align Right", "⌘}"},
    {"Format › Copy Style", "⌥⌘C"},
    {"Format › Paste Style", "⌥⌘V"},
    {"View › Zoom In", "⌘="},
    {"View › Zoom Out", "⌘-"},
    {"View › Actual Size", "⌘0"},
    {"View › Zoom to Fit", "⌘1"},
    {"View › Show Rulers", "⌘R"},
    {"View › Show Grid", "⌘'"},
    {"View › Show Layers", "⌥⌘L"},
    {"View › Hide Toolbar", "⌥⌘T"},
    {"View › Enter Full Screen", "⌃⌘F"},
    {"Window › Minimize", "⌘M"},
    {"Help › Sketchpad Help", "⌘?"},
};

std::vector<std::string> titlesOf(const std::vector<MenuEntry>& entries) {
    std::vector<std::string> titles;
    titles.reserve(entries.size());
    for (const MenuEntry& entry : entries)
        titles.emplace_back(entry.title());
    return titles;
}

TEST(SampleMenus, HoldTheFiftyNineEntriesInMenuOrder) {
    std::vector<std::pair<std::string, std::string>> found;
    for (const MenuEntry& entry : SampleMenus::sheet().entries) {
        found.emplace_back(entry.id(), entry.shortcut.display());
        EXPECT_TRUE(entry.enabled) << entry.id();
    }
    EXPECT_EQ(found, allEntries);
    EXPECT_EQ(found.size(), 59u);
}

TEST(SampleMenus, AreTheSheetOfSketchpad) {
    const AppSheet& sheet = SampleMenus::sheet();
    EXPECT_EQ(sheet.bundleID, "com.example.sketchpad");
    EXPECT_EQ(sheet.appName, "Sketchpad");
    using namespace std::chrono;
    EXPECT_EQ(sheet.readAt, Instant(sys_days{2026y / 10 / 10} + 2h + 40min));
}

TEST(SampleMenus, HaveNineMenusAsARealMenuBarHas) {
    std::vector<std::string> titles;
    for (const RawMenuItem& menu : SampleMenus::menuBar()) {
        titles.push_back(menu.title);
        EXPECT_EQ(menu.cmdChar, std::nullopt);
        EXPECT_TRUE(menu.enabled);
    }
    EXPECT_THAT(
        titles,
        ElementsAre("Apple", "Sketchpad", "File", "Edit", "Object", "Format", "View", "Window", "Help"));
}

TEST(SampleMenus, GroupByMenuWithoutTheAppleMenu) {
    std::vector<std::string> menus;
    for (const MenuGroup& group : SampleMenus::sheet().groups())
        menus.push_back(group.menu);
    EXPECT_THAT(
        menus, ElementsAre("Sketchpad", "File", "Edit", "Object", "Format", "View", "Window", "Help"));
}

TEST(SampleMenus, LeaveOutWhatHasNoShortcut) {
    const AppSheet& sheet = SampleMenus::sheet();
    for (const char* id :
         {"Apple › About This Mac", "Apple › Force Quit…", "Sketchpad › About Sketchpad", "File › Rename…",
          "Window › Zoom", "Window › Bring All to Front", "File › Open Recent › Harbor at Dusk.sketch",
          "File › Open Recent › Clear Menu", "File › Open Recent"})
        EXPECT_THAT(sheet.entry(id), IsNull()) << id;
}

TEST(SampleMenus, HaveADeleteThatNeedsNoModifiers) {
    const MenuEntry* entry = SampleMenus::sheet().entry("Edit › Delete");
    ASSERT_THAT(entry, NotNull());
    EXPECT_TRUE(entry->shortcut.modifiers.isEmpty());
    EXPECT_EQ(entry->shortcut.key, Key::special(SpecialKey::delete_));
    EXPECT_EQ(entry->shortcut.display(), "⌫");
}

TEST(SampleMenus, HaveOneShortcutOfTheSystem) {
    for (const MenuEntry& entry : SampleMenus::sheet().entries)
        EXPECT_EQ(entry.isSystemReserved(), entry.id() == "Edit › Emoji & Symbols") << entry.id();
}

TEST(SampleMenus, AnswerASearchForACharacterTheyUseTwice) {
    EXPECT_THAT(
        titlesOf(ShortcutSearch::filter(SampleMenus::sheet().entries, "cmd -", {})),
        ElementsAre("Smaller", "Zoom Out"));
}

} // namespace
} // namespace quillon
