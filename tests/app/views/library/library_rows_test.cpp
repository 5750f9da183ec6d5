#include <quillon/app/views/library/learned_rows.h>
#include <quillon/app/views/library/library_rows.h>
#include <quillon/app/views/sheet/searched_sheet.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;

constexpr Instant now = std::chrono::sys_days{std::chrono::year{2024} / 5 / 1};

class LibraryRowsTest : public testing::Test {
  protected:
    std::vector<LibraryRow> rows(std::string_view query = "") const {
        SearchedSheet searched;
        searched.update(&sheet, annotations, usage);
        return libraryRows(
            *searched.prepared(), usage, searched.matches(query), secondsBetween(sheet.readAt, now));
    }
    /// The rows as lines: "# Heading", "Title", what else there is of them behind it.
    std::vector<std::string> lines(std::string_view query = "") const {
        std::vector<std::string> lines;
        for (const LibraryRow& row : rows(query)) {
            QStringList parts{(row.kind == LibraryRow::Kind::heading ? u"# "_s : QString()) + row.text};
            for (const QString& part : {row.counts, row.note})
                if (!part.isEmpty())
                    parts.append(part);
            lines.push_back(parts.join(u" | "_s).toStdString());
        }
        return lines;
    }

    AppSheet sheet{
        .bundleID = "org.example.App",
        .appName = "App",
        .entries =
            {{{"File", "Open"}, {Modifiers::control, Key::character("O")}, true},
             {{"File", "Save"}, {Modifiers::control, Key::character("S")}, true},
             {{"Edit", "Copy"}, {Modifiers::control, Key::character("C")}, true}},
        .readAt = after(now, Seconds(-3 * 3600))};
    UsageBook usage;
    AnnotationBook annotations;
};

TEST_F(LibraryRowsTest, StatisticsThenMenus) {
    EXPECT_THAT(
        lines(), ElementsAre(
                     "3 shortcuts · menus read 3 hours ago", "0 menu clicks | 0 shortcuts typed", "# File",
                     "Open", "Save", "# Edit", "Copy"));
}

TEST_F(LibraryRowsTest, WhatIsClickedMostIsToBeLearnedNext) {
    for (int clicks = 0; clicks < 3; ++clicks)
        usage.click(sheet.bundleID, "File › Save", now);
    usage.click(sheet.bundleID, "Edit › Copy", now);
    usage.typed(sheet.bundleID, "File › Open");
    EXPECT_THAT(
        lines(), ElementsAre(
                     "3 shortcuts · menus read 3 hours ago", "4 menu clicks | 1 shortcuts typed",
                     "# Learn these next", "Save | 3 clicked · 0 typed", "Copy | 1 clicked · 0 typed",
                     "# File", "Open | 0 clicked · 1 typed", "Save | 3 clicked · 0 typed", "# Edit",
                     "Copy | 1 clicked · 0 typed"));
}

TEST_F(LibraryRowsTest, ThreeAreToBeLearnedAtMostAndOnlyWhatIsStillThere) {
    for (const char* const id : {"File › Save", "File › Open", "Edit › Copy", "Edit › Gone"})
        usage.click(sheet.bundleID, id, now);
    const auto rows = lines();
    EXPECT_EQ(rows.size(), 2U + 1U + 2U + 5U) << "one of the three is gone";
    usage = {};
    usage.click(sheet.bundleID, "Edit › Gone", now);
    EXPECT_THAT(lines(), testing::Not(Contains("# Learn these next")));
}

TEST_F(LibraryRowsTest, AQueryNarrowsTheMenusAlone) {
    usage.click(sheet.bundleID, "File › Save", now);
    EXPECT_THAT(
        lines("copy"), ElementsAre(
                           "3 shortcuts · menus read 3 hours ago", "1 menu clicks | 0 shortcuts typed",
                           "# Learn these next", "Save | 1 clicked · 0 typed", "# Edit", "Copy"));
    EXPECT_EQ(lines("xyz").size(), 4U);
}

TEST_F(LibraryRowsTest, AQueryFindsKeysByTheirNames) {
    const auto found = lines("ctrl s");
    EXPECT_THAT(found, Contains("Save"));
    EXPECT_THAT(found, testing::Not(Contains("Open")));
}

TEST_F(LibraryRowsTest, NotesAreShownAndFound) {
    annotations.apps[sheet.bundleID]["Edit › Copy"] = {
        .pinned = false, .note = "into the\nclipboard", .muted = false};
    EXPECT_THAT(lines("clipboard"), Contains("Copy | into the clipboard"));
}

TEST_F(LibraryRowsTest, PinsAndMutesAreTold) {
    annotations.apps[sheet.bundleID]["Edit › Copy"] = {.pinned = true, .note = "", .muted = false};
    annotations.apps[sheet.bundleID]["File › Save"] = {.pinned = false, .note = "", .muted = true};
    for (const LibraryRow& row : rows()) {
        EXPECT_EQ(row.pinned, row.entryID == "Edit › Copy") << row.entryID;
        EXPECT_EQ(row.muted, row.entryID == "File › Save") << row.entryID;
    }
}

TEST_F(LibraryRowsTest, ACommandToLearnIsAnotherRowThanTheSameInItsMenu) {
    usage.click(sheet.bundleID, "File › Save", now);
    const auto shown = rows();
    EXPECT_EQ(shown[3].entryID, shown[6].entryID);
    EXPECT_FALSE(shown[3].isSameAs(shown[6]));
    usage.click(sheet.bundleID, "File › Save", now);
    EXPECT_NE(rows()[3], shown[3]);
    EXPECT_TRUE(rows()[3].isSameAs(shown[3]));
}

TEST_F(LibraryRowsTest, LeaningOnClicksIsToldApart) {
    usage.click(sheet.bundleID, "File › Save", now);
    usage.typed(sheet.bundleID, "File › Open");
    for (const LibraryRow& row : rows())
        EXPECT_EQ(row.leansOnClicks, row.entryID == "File › Save") << row.entryID;
}

TEST(LearnedRows, AreAHeadingTheChartAndWhatToSayOfIt) {
    const LearnedSummary summary{
        .weeks = {{Day(std::chrono::local_days{std::chrono::year{2026} / 11 / 16}), 3, 12}},
        .graduated = {u"Save"_s},
        .typed = 12};
    const auto rows = learnedRows(summary);
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0].text, u"What you learned"_s);
    EXPECT_EQ(rows[1].weeks, summary.weeks);
    EXPECT_EQ(rows[1].text, u"Week of 16 Nov: 3 clicked, 12 typed."_s) << "read aloud";
    EXPECT_EQ(rows[2].text, u"Graduated (1): Save"_s);
    EXPECT_TRUE(rows[3].text.startsWith(u"About 26 s saved"_s));
    EXPECT_EQ(learnedRows({.weeks = summary.weeks, .graduated = {}, .typed = 0}).size(), 3U)
        << "nothing was typed";
}

TEST(LearnedRows, LeaveAnEmptyChartOut) {
    const LearnedSummary longAgo{
        .weeks = {{Day(std::chrono::local_days{std::chrono::year{2026} / 11 / 16})}},
        .graduated = {u"Save"_s},
        .typed = 12};
    const auto rows = learnedRows(longAgo);
    ASSERT_EQ(rows.size(), 3U);
    for (const LibraryRow& row : rows)
        EXPECT_FALSE(row.text.isEmpty()) << "every row has something to read aloud";
    EXPECT_EQ(rows[1].text, u"Graduated (1): Save"_s);
}

} // namespace
} // namespace quillon
