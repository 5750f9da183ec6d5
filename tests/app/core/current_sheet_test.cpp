#include <quillon/app/core/current_sheet.h>

#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

RunningApp appOf(const std::string& bundleID) {
    return {1, bundleID, bundleID, {}};
}

AppSheet sheetOf(const std::string& bundleID, std::size_t entries, Instant readAt = distantPast) {
    AppSheet sheet{bundleID, bundleID, {}, readAt};
    for (std::size_t i = 0; i < entries; ++i)
        sheet.entries.push_back(
            {.path = {"Menu", std::to_string(i)},
             .shortcut = Shortcut(Modifiers::command, Key::character("A"))});
    return sheet;
}

/// A sheet that comes while the application is in front.
bool read(CurrentSheet& sheets, const std::string& bundleID, std::size_t entries) {
    sheets.frontIs(appOf(bundleID));
    return sheets.arrived(appOf(bundleID), sheetOf(bundleID, entries), ReadOutcome::complete, true);
}

TEST(CurrentSheetTest, IsAbsentAtFirst) {
    const CurrentSheet sheets;
    EXPECT_FALSE(sheets.current());
    EXPECT_TRUE(sheets.sheets().empty());
}

TEST(CurrentSheetTest, AnUnknownApplicationHasAnEmptySheetUntilItIsRead) {
    CurrentSheet sheets;
    sheets.frontIs(appOf("a"));
    EXPECT_EQ(sheets.current(), sheetOf("a", 0));
    EXPECT_TRUE(sheets.arrived(appOf("a"), sheetOf("a", 2), ReadOutcome::complete, true));
    EXPECT_EQ(sheets.current(), sheetOf("a", 2));
    EXPECT_EQ(*sheets.sheets().at("a"), sheetOf("a", 2));
}

TEST(CurrentSheetTest, ALateSheetIsKeptWithoutBecomingCurrent) {
    CurrentSheet sheets;
    read(sheets, "a", 1);
    sheets.frontIs(appOf("b"));
    const std::uint64_t before = sheets.revision();
    EXPECT_TRUE(sheets.arrived(appOf("c"), sheetOf("c", 3), ReadOutcome::complete, false));
    EXPECT_EQ(sheets.current()->bundleID, "b");
    EXPECT_EQ(sheets.revision(), before);
    EXPECT_EQ(sheets.sheets().count("c"), 1U);
}

TEST(CurrentSheetTest, RemembersWhetherTheCurrentApplicationAnswered) {
    CurrentSheet sheets;
    sheets.frontIs(appOf("a"));
    EXPECT_TRUE(sheets.answered());
    sheets.arrived(appOf("a"), sheetOf("a", 0), ReadOutcome::partial, true);
    EXPECT_FALSE(sheets.answered());
    sheets.frontIs(appOf("a"));
    EXPECT_FALSE(sheets.answered()) << "until it is read again";
    sheets.arrived(appOf("b"), sheetOf("b", 1), ReadOutcome::complete, false);
    EXPECT_FALSE(sheets.answered()) << "another one did";
    sheets.arrived(appOf("a"), sheetOf("a", 0), ReadOutcome::unavailable, true);
    EXPECT_FALSE(sheets.answered()) << "it was not even asked";
    sheets.frontIs(appOf("b"));
    EXPECT_TRUE(sheets.answered());
    sheets.frontIs(appOf("a"));
    sheets.arrived(appOf("a"), sheetOf("a", 0), ReadOutcome::partial, true);
    sheets.arrived(appOf("a"), sheetOf("a", 0), ReadOutcome::noMenuBar, true);
    EXPECT_TRUE(sheets.answered());
    sheets.arrived(appOf("a"), sheetOf("a", 0), ReadOutcome::partial, true);
    sheets.clear();
    EXPECT_TRUE(sheets.answered()) << "of none";
}

TEST(CurrentSheetTest, TheRevisionTellsAnotherSheetFromTheSame) {
    CurrentSheet sheets;
    read(sheets, "a", 1);
    const std::uint64_t before = sheets.revision();
    sheets.frontIs(appOf("a"));
    EXPECT_EQ(sheets.revision(), before);
    sheets.frontIs(appOf("b"));
    EXPECT_NE(sheets.revision(), before);
}

TEST(CurrentSheetTest, AnEmptySheetIsNotKept) {
    CurrentSheet sheets;
    EXPECT_FALSE(read(sheets, "a", 0));
    EXPECT_TRUE(sheets.sheets().empty());
}

TEST(CurrentSheetTest, ForgetsEverythingOnRequest) {
    CurrentSheet sheets;
    read(sheets, "a", 1);
    const std::uint64_t before = sheets.revision();
    sheets.clear();
    EXPECT_FALSE(sheets.current());
    EXPECT_TRUE(sheets.sheets().empty());
    EXPECT_NE(sheets.revision(), before);
    EXPECT_TRUE(read(sheets, "a", 1));
}

TEST(CurrentSheetTest, WhatIsShownOnlyIsNotKept) {
    CurrentSheet sheets;
    sheets.show(sheetOf("sample", 3));
    EXPECT_EQ(sheets.current()->entries.size(), 3U);
    EXPECT_TRUE(sheets.sheets().empty());
}

TEST(CurrentSheetTest, DropsTheSheetThatWasUsedLongestAgoWhenThereAreTooMany) {
    CurrentSheet sheets;
    for (std::size_t i = 0; i < CurrentSheet::mostSheets; ++i)
        read(sheets, "app" + std::to_string(i), 1);
    sheets.frontIs(appOf("app0"));
    read(sheets, "one more", 1);
    EXPECT_EQ(sheets.sheets().size(), CurrentSheet::mostSheets);
    EXPECT_EQ(sheets.sheets().count("app0"), 1U) << "was in front a moment ago";
    EXPECT_EQ(sheets.sheets().count("app1"), 0U);
    EXPECT_EQ(sheets.sheets().count("one more"), 1U);
}

TEST(CurrentSheetTest, DropsSheetsWhenTheyHaveTooManyEntriesTogether) {
    CurrentSheet sheets;
    constexpr std::size_t large = CurrentSheet::mostEntries / 3;
    for (const char* bundleID : {"a", "b", "c", "d"})
        read(sheets, bundleID, large);
    EXPECT_EQ(sheets.sheets().size(), 3U);
    EXPECT_EQ(sheets.sheets().count("a"), 0U);
    read(sheets, "b", 1);
    read(sheets, "e", large - 1);
    EXPECT_EQ(sheets.sheets().size(), 4U) << "a smaller sheet made room";
}

TEST(CurrentSheetTest, NeverDropsTheCurrentOne) {
    CurrentSheet sheets;
    read(sheets, "mine", 1);
    for (std::size_t i = 0; i < 2 * CurrentSheet::mostSheets; ++i) {
        const std::string other = "other" + std::to_string(i);
        sheets.arrived(appOf(other), sheetOf(other, 1), ReadOutcome::complete, false);
    }
    EXPECT_EQ(sheets.current()->bundleID, "mine");
    EXPECT_EQ(sheets.sheets().count("mine"), 1U);
    EXPECT_EQ(sheets.sheets().size(), CurrentSheet::mostSheets);
}

TEST(CurrentSheetTest, KeepsTheYoungestOfTooManyFromAnEarlierRun) {
    SharedSheets stored;
    for (std::size_t i = 0; i <= CurrentSheet::mostSheets; ++i) {
        const std::string bundleID = "app" + std::to_string(i);
        stored.emplace(
            bundleID, SharedSheet(sheetOf(bundleID, 1, distantPast + std::chrono::seconds(1000 - i))));
    }
    const std::string oldest = "app" + std::to_string(CurrentSheet::mostSheets);
    CurrentSheet sheets;
    sheets.load(std::move(stored));
    EXPECT_EQ(sheets.sheets().size(), CurrentSheet::mostSheets);
    EXPECT_EQ(sheets.sheets().count(oldest), 0U);
}

} // namespace
} // namespace quillon
