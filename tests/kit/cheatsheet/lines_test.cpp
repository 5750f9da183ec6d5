#include <quillon/kit/cheatsheet/cheat_sheet.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <unordered_set>

namespace quillon::CheatSheet {

void PrintTo(const Heading& heading, std::ostream* out) {
    *out << "heading " << heading.text << (heading.continued ? " (continued)" : "");
}

void PrintTo(const Item& item, std::ostream* out) {
    *out << "item " << item.title << " " << item.shortcut << (item.pinned ? " pinned" : "");
}

void PrintTo(const Note& note, std::ostream* out) {
    *out << "note " << note.text;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

MenuEntry entry(std::vector<std::string> path, const char* character, bool enabled = true) {
    return {std::move(path), {Modifiers::command, Key::character(character)}, enabled};
}

const AppSheet sheet{
    "app",
    "App",
    {entry({"File", "Open"}, "O"), entry({"File", "Save"}, "S"), entry({"Edit", "Paste"}, "V", false),
     entry({"Edit", "Find", "Next"}, "G"), entry({"File", "Print"}, "P")},
    Instant()};

TEST(CheatSheetLines, GiveEachMenuAGroupInMenuOrder) {
    EXPECT_THAT(
        lines(sheet, {}, IncludeNotes::yes),
        ElementsAre(
            ElementsAre(Heading{"File"}, Item{"Open", "⌘O"}, Item{"Save", "⌘S"}, Item{"Print", "⌘P"}),
            ElementsAre(Heading{"Edit"}, Item{"Paste", "⌘V"}, Item{"Next", "⌘G"})));
}

TEST(CheatSheetLines, PutPinnedCommandsFirstAndKeepThemInTheirMenus) {
    const Annotations annotations{
        {"Edit › Find › Next", {.pinned = true}}, {"File › Save", {.pinned = true}}};
    EXPECT_THAT(
        lines(sheet, annotations, IncludeNotes::no),
        ElementsAre(
            ElementsAre(Heading{"Pinned"}, Item{"Save", "⌘S", true}, Item{"Next", "⌘G", true}),
            ElementsAre(Heading{"File"}, Item{"Open", "⌘O"}, Item{"Save", "⌘S", true}, Item{"Print", "⌘P"}),
            ElementsAre(Heading{"Edit"}, Item{"Paste", "⌘V"}, Item{"Next", "⌘G", true})));
}

TEST(CheatSheetLines, PutNotesBelowTheirItems) {
    const Annotations annotations{
        {"File › Save", {.pinned = true, .note = "often"}},
        {"Edit › Paste", {.note = "two\nlines"}},
        {"File › Open", {.muted = true}},
        {"File › Gone", {.pinned = true, .note = "no such command"}}};
    EXPECT_THAT(
        lines(sheet, annotations, IncludeNotes::yes),
        ElementsAre(
            ElementsAre(Heading{"Pinned"}, Item{"Save", "⌘S", true}, Note{"often"}),
            ElementsAre(
                Heading{"File"}, Item{"Open", "⌘O"}, Item{"Save", "⌘S", true}, Note{"often"},
                Item{"Print", "⌘P"}),
            ElementsAre(Heading{"Edit"}, Item{"Paste", "⌘V"}, Note{"two\nlines"}, Item{"Next", "⌘G"})));
}

TEST(CheatSheetLines, LeaveNotesOutWhenAskedTo) {
    for (const Group& group : lines(SampleMenus::sheet(), SampleMenus::annotations(), IncludeNotes::no)) {
        for (const Line& line : group)
            EXPECT_FALSE(std::holds_alternative<Note>(line));
    }
}

TEST(CheatSheetLines, OfNothingAreNothing) {
    EXPECT_THAT(lines({}, {}, IncludeNotes::yes), IsEmpty());
    EXPECT_THAT(lines({}, {{"File › Save", {.pinned = true}}}, IncludeNotes::yes), IsEmpty());
}

TEST(CheatSheetLines, OfTheSampleStartWithItsThreePins) {
    const auto groups = lines(SampleMenus::sheet(), SampleMenus::annotations(), IncludeNotes::yes);
    ASSERT_THAT(groups, SizeIs(9));
    EXPECT_THAT(
        groups.front(), ElementsAre(
                            Heading{"Pinned"}, Item{"Duplicate", "⇧⌘S", true},
                            Note{"Makes a copy next to the original"}, Item{"Paste in Place", "⌥⇧⌘V", true},
                            Note{"Same spot as the copied shape"}, Item{"Group", "⌥⌘G", true}));
}

TEST(CheatSheetLines, HoldEveryEntryOnceInItsMenu) {
    RandomValues random(121);
    for (int round = 0; round < 200; ++round) {
        AppSheet any{"app", "App", random.entries(random.number(0, 50)), Instant()};
        Annotations annotations;
        std::size_t pinned = 0;
        for (const MenuEntry& one : any.entries) {
            if (random.chance(0.2))
                annotations[one.id()] = {random.chance(0.5), random.text(), false};
        }
        for (const MenuEntry& one : any.entries)
            pinned += annotations.contains(one.id()) && annotations[one.id()].pinned;
        std::size_t items = 0;
        for (const Group& group : lines(any, annotations, IncludeNotes::yes)) {
            ASSERT_GE(group.size(), 2u);
            const auto* heading = std::get_if<Heading>(&group.front());
            ASSERT_TRUE(heading);
            EXPECT_FALSE(heading->continued);
            EXPECT_TRUE(std::holds_alternative<Item>(group[1]));
            for (const Line& line : group)
                items += std::holds_alternative<Item>(line);
        }
        EXPECT_EQ(items, any.entries.size() + pinned);
    }
}

TEST(CheatSheetLine, ComparesAndHashesByKindAndFields) {
    const std::unordered_set<Line> set{
        Heading{"a"},   Heading{"a", true}, Heading{"b"}, Item{"a", "b"}, Item{"a", "b", true},
        Item{"b", "a"}, Note{"a"},          Note{"a"},    Note{"b"}};
    EXPECT_EQ(set.size(), 8u);
}

} // namespace
} // namespace quillon::CheatSheet
