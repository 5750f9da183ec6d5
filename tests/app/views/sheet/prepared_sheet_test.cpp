#include <quillon/app/views/sheet/prepared_sheet.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

MenuEntry entry(std::vector<std::string> path) {
    return {std::move(path), {Modifiers::command, Key::character("A")}, true};
}

PreparedSheet prepared(const AppSheet& sheet, const Annotations& said = {}, const UsageRecords& usage = {}) {
    AnnotationBook annotations;
    annotations.apps[sheet.bundleID] = said;
    UsageBook book;
    book.apps[sheet.bundleID] = usage;
    return PreparedSheet::prepare(sheet, annotations, book);
}

TEST(PreparedSheet, JoinsCommandsWithWhatIsKnownOfThem) {
    const PreparedSheet sheet =
        prepared(SampleMenus::sheet(), SampleMenus::annotations(), SampleMenus::usage());
    const auto found = std::ranges::find(sheet.entries, "File › Duplicate", &PreparedEntry::id);
    ASSERT_NE(found, sheet.entries.end());
    EXPECT_EQ(found->title, u"Duplicate"_s);
    EXPECT_TRUE(found->pinned);
    EXPECT_EQ(found->clicked, 14);
    EXPECT_EQ(found->note, u"Makes a copy next to the original"_s);
}

TEST(PreparedSheet, TitlesNamesAndNotesAreOneLineEach) {
    AppSheet sheet{
        .bundleID = "app", .appName = "Two\nlines", .entries = {entry({"File", "New\tfile \n now"})}};
    Annotations said;
    said[sheet.entries[0].id()].note = "first\nsecond";
    const PreparedSheet made = prepared(sheet, said);
    EXPECT_EQ(made.appName, u"Two\u2424lines"_s);
    EXPECT_EQ(made.entries[0].title, u"New file \u2424 now"_s);
    EXPECT_EQ(made.entries[0].note, u"first second"_s);
    EXPECT_EQ(made.entries[0].id, sheet.entries[0].id()) << "the key of its records stays as it is";
}

TEST(PreparedSheet, KnowsWhatIsMutedAndHowOftenItIsTyped) {
    AppSheet sheet{.bundleID = "app", .appName = "App", .entries = {entry({"File", "New"})}};
    Annotations said;
    said[sheet.entries[0].id()].muted = true;
    UsageRecords usage;
    usage[sheet.entries[0].id()].typed = 3;
    const PreparedSheet made = prepared(sheet, said, usage);
    EXPECT_TRUE(made.entries[0].muted);
    EXPECT_EQ(made.entries[0].typed, 3);
}

TEST(NoteLine, LinesTabsAndBlanksBecomeBlanks) {
    EXPECT_EQ(noteLine("one\ttwo\r\n\nthree\u2028four  five"), u"one two three four five"_s);
    EXPECT_EQ(noteLine(" \n\t "), QString());
}

TEST(NoteLine, TurnsNoTextAroundIt) {
    EXPECT_EQ(noteLine("a\u202eb"), u"a\ufffdb"_s);
    EXPECT_EQ(noteLine("שמור עותק"), u"שמור עותק"_s);
}

TEST(NoteLine, OfALongOneThereIsTheBeginning) {
    EXPECT_EQ(noteLine(std::string(1000, 'x')), QString(1000, u'x'));
    EXPECT_EQ(noteLine(std::string(10'000, 'x')), QString(1000, u'x') + u'…');
    std::string flags;
    for (int count = 0; count < 2000; ++count)
        flags += "🇩🇪"; // four units each
    const QString cut = noteLine("x" + flags);
    EXPECT_EQ(cut.size(), 1 + 4 * 249 + 1) << "no flag is torn apart";
}

TEST(PreparedSheet, BrokenTextIsStillShown) {
    const PreparedSheet made =
        prepared({.bundleID = "app", .appName = "\xff", .entries = {entry({"File", "caf\xe9"})}});
    EXPECT_EQ(made.entries[0].title, u"caf\uFFFD"_s);
}

} // namespace
} // namespace quillon
