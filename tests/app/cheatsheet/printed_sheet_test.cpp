#include <quillon/app/cheatsheet/printed_sheet.h>
#include <quillon/tests/app/cheatsheet/support/printed_samples.h>

#include <gtest/gtest.h>

#include <set>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

PrintedSheet printed(const AnnotatedSheet& of, const KeyNames* names = nullptr) {
    return PrintedSheet::of({of.sheet, of.annotations, names});
}

TEST(PrintedSheet, PagesAreThreeColumnsOfThirtyLines) {
    const AnnotatedSheet many = manyEntries(1000);
    const std::vector<CheatSheet::Group> groups =
        CheatSheet::lines(many.sheet, many.annotations, CheatSheet::IncludeNotes::yes);
    EXPECT_EQ(printed(many).pages, CheatSheet::paginate(groups, {.linesPerColumn = 30, .columns = 3}));
}

TEST(PrintedSheet, AMenuOfThirtyItemsGoesOnInTheSecondColumn) {
    AnnotatedSheet one = emptySheet("One");
    for (int i = 0; i < 30; ++i)
        one.sheet.entries.push_back(
            {{"File", "Item " + std::to_string(i)}, {Modifiers::command, Key::character("A")}});
    const PrintedSheet sheet = printed(one);
    ASSERT_EQ(sheet.pages.size(), 1U);
    ASSERT_EQ(sheet.pages[0].size(), 2U);
    EXPECT_EQ(sheet.pages[0][1].front(), (CheatSheet::Line{CheatSheet::Heading{"File", true}}));
}

TEST(PrintedSheet, EveryItemHasItsCaps) {
    for (const KeyNames* names : {static_cast<const KeyNames*>(nullptr), &KeyNames::english()}) {
        const PrintedSheet sheet = printed(manyEntries(300), names);
        for (const CheatSheet::Page& page : sheet.pages)
            for (const CheatSheet::Column& column : page)
                for (const CheatSheet::Line& line : column)
                    if (const auto* item = std::get_if<CheatSheet::Item>(&line)) {
                        ASSERT_TRUE(sheet.caps.contains(item->shortcut)) << item->shortcut;
                        const QString shown = sheet.caps.at(item->shortcut).join(names ? u" "_s : QString());
                        EXPECT_EQ(shown.toStdString(), item->shortcut);
                    }
    }
}

TEST(PrintedSheet, ShortcutsAreCountedOnceHoweverOftenTheyStandOnThePages) {
    EXPECT_EQ(printed(sampleSheet()).shortcuts, 59);
}

TEST(PrintedSheet, WithoutANameTheIdentifierIsShown) {
    EXPECT_EQ(
        printed({{.bundleID = "org.example.App", .appName = "", .entries = {}}}).appName,
        u"org.example.App"_s);
}

TEST(PrintedSheet, WithoutShortcutsThereAreNoPages) {
    EXPECT_TRUE(printed(emptySheet("Empty")).pages.empty());
}

} // namespace
} // namespace quillon
