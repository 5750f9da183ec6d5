#include <quillon/app/views/library/library_rows.h>

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
    /// The rows as lines: "# Heading", "Title", what else there is of them behind it.
    std::vector<std::string> lines(std::string_view query = "") const {
        std::vector<std::string> lines;
        for (const LibraryRow& row : libraryRows(sheet, {usage, annotations}, query, now)) {
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

TEST_F(LibraryRowsTest, LeaningOnClicksIsToldApart) {
    usage.click(sheet.bundleID, "File › Save", now);
    usage.typed(sheet.bundleID, "File › Open");
    for (const LibraryRow& row : libraryRows(sheet, {usage, annotations}, "", now))
        EXPECT_EQ(row.leansOnClicks, row.entryID == "File › Save") << row.entryID;
}

} // namespace
} // namespace quillon
