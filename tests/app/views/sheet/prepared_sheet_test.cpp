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

TEST(PreparedSheet, BrokenTextIsStillShown) {
    const PreparedSheet made =
        prepared({.bundleID = "app", .appName = "\xff", .entries = {entry({"File", "caf\xe9"})}});
    EXPECT_EQ(made.entries[0].title, u"caf\uFFFD"_s);
}

} // namespace
} // namespace quillon
