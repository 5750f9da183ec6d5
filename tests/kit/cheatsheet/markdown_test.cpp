#include <quillon/kit/cheatsheet/cheat_sheet.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>

#include <gmock/gmock.h>

namespace quillon::CheatSheet {
namespace {

using testing::EndsWith;
using testing::StartsWith;

const AppSheet oneCommand{
    "com.example.sketchpad",
    "Sketchpad",
    {{{"File", "Save"}, {Modifiers::command, Key::character("S")}, true}},
    Instant()};

TEST(CheatSheetMarkdown, OfNothingIsItsTitle) {
    EXPECT_EQ(markdown({"app", "App", {}, Instant()}, {}), "# App shortcuts\n");
}

TEST(CheatSheetMarkdown, ListsTheCommandsOfEachMenu) {
    EXPECT_EQ(markdown(oneCommand, {}), "# Sketchpad shortcuts\n\n## File\n\n- **⌘S** Save\n");
}

TEST(CheatSheetMarkdown, ShowsKeysByTheirNamesWhereItIsGivenThem) {
    const KeyNames& names = KeyNames::english();
    EXPECT_EQ(
        markdown(oneCommand, {{"File › Save", {.pinned = true}}}, &names),
        "# Sketchpad shortcuts\n\n## Pinned\n\n- **Super S** Save\n\n## File\n\n- **Super S** Save\n");
}

TEST(CheatSheetMarkdown, StartsWithWhatIsPinned) {
    EXPECT_EQ(
        markdown(oneCommand, {{"File › Save", {.pinned = true}}}),
        "# Sketchpad shortcuts\n\n## Pinned\n\n- **⌘S** Save\n\n## File\n\n- **⌘S** Save\n");
}

TEST(CheatSheetMarkdown, NestsNotesAsTheyStand) {
    EXPECT_EQ(
        markdown(oneCommand, {{"File › Save", {.note = "one\ntwo"}}}),
        "# Sketchpad shortcuts\n\n## File\n\n- **⌘S** Save\n  - one\ntwo\n");
}

TEST(CheatSheetMarkdown, WritesTheWholeSample) {
    const std::string text = markdown(SampleMenus::sheet(), SampleMenus::annotations());
    EXPECT_THAT(
        text, StartsWith("# Sketchpad shortcuts\n\n## Pinned\n\n- **⇧⌘S** Duplicate\n"
                         "  - Makes a copy next to the original\n- **⌥⇧⌘V** Paste in Place\n"
                         "  - Same spot as the copied shape\n- **⌥⌘G** Group\n\n## Sketchpad\n\n"
                         "- **⌘,** Settings…\n"));
    EXPECT_THAT(text, EndsWith("\n## Window\n\n- **⌘M** Minimize\n\n## Help\n\n- **⌘?** Sketchpad Help\n"));
}

} // namespace
} // namespace quillon::CheatSheet
