#include <quillon/app/core/learned_records.h>

#include <gtest/gtest.h>

#include <vector>

namespace quillon {
namespace {

class LearnedRecordsTest : public testing::Test {
  protected:
    LearnedRecords records;
    std::vector<RecordChange> told;
    Subscription subscription =
        records.changed.subscribe([this](const RecordChange& change) { told.push_back(change); });
};

TEST_F(LearnedRecordsTest, APinTellsWhose) {
    records.togglePin("org.example.writer", "File › Save");
    EXPECT_TRUE(records.annotations().get("org.example.writer", "File › Save").pinned);
    EXPECT_EQ(told, (std::vector<RecordChange>{{"org.example.writer", "File › Save"}}));
    EXPECT_TRUE(told[0].concerns("org.example.writer"));
    EXPECT_FALSE(told[0].concerns("org.example.sketch"));
}

TEST_F(LearnedRecordsTest, ANoteAndAMuteLeaveTheRest) {
    records.togglePin("a", "x");
    records.setNote("a", "x", "thumb first");
    records.setMuted("a", "x", true);
    EXPECT_EQ(
        records.annotations().get("a", "x"),
        (Annotation{.pinned = true, .note = "thumb first", .muted = true}));
    EXPECT_EQ(told, (std::vector<RecordChange>{{"a", "x"}, {"a", "x"}, {"a", "x"}}));
    records.setNote("a", "x", "");
    records.setMuted("a", "x", false);
    EXPECT_EQ(records.annotations().get("a", "x"), Annotation{.pinned = true});
}

TEST_F(LearnedRecordsTest, WhatIsSaidAlreadyIsNoChange) {
    records.setNote("a", "x", "");
    records.setMuted("a", "x", false);
    records.setNote("a", "x", "thumb first");
    records.setNote("a", "x", "thumb first");
    EXPECT_EQ(told.size(), 1U);
    records.setNote("a", "x", "");
    EXPECT_TRUE(records.annotations().apps.empty()) << "a command of which nothing is said";
}

TEST_F(LearnedRecordsTest, EveryUseTellsWhoseOnce) {
    const Instant time = distantPast;
    records.click("a", "x", time);
    records.typed("a", "x", time);
    records.nudged("a", "y", time);
    records.practiced("a", "z", true);
    records.practiced("a", "z", false);
    EXPECT_EQ(records.usage().record("a", "x"), (UsageRecord{.clicked = 1, .typed = 1, .lastClicked = time}));
    EXPECT_EQ(records.usage().record("a", "y"), UsageRecord{.lastNudged = time});
    EXPECT_EQ(told, (std::vector<RecordChange>{{"a", "x"}, {"a", "x"}, {"a", "y"}, {"a", "z"}, {"a", "z"}}));
}

TEST_F(LearnedRecordsTest, ClicksAndTypedUsesAreSummedByWeeks) {
    const Instant time = std::chrono::sys_days{std::chrono::year{2026} / 11 / 18} + std::chrono::hours(12);
    records.click("a", "x", time);
    records.typed("a", "x", time);
    records.typed("a", "y", time + std::chrono::days(7));
    records.practiced("a", "x", true);
    records.nudged("a", "x", time);
    EXPECT_EQ(records.weeks().weeks("a"), (WeekSums{{"2026-11-16", {1, 1}}, {"2026-11-23", {0, 1}}}));
}

TEST_F(LearnedRecordsTest, ReplacingAllConcernsEveryApplication) {
    UsageBook usage;
    usage.typed("a", "x");
    records.replace(usage, {}, {});
    EXPECT_EQ(records.usage(), usage);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].concerns("a"));
    EXPECT_TRUE(told[0].concerns("b"));
    records.replace(usage, {}, {});
    EXPECT_EQ(told.size(), 1U) << "nothing changed";
}

TEST_F(LearnedRecordsTest, ReplacingOneApplicationsLeavesTheOthers) {
    records.togglePin("a", "x");
    records.replace("b", {{"y", UsageRecord{.clicked = 2}}}, {{"y", Annotation{.pinned = true}}}, {});
    EXPECT_TRUE(records.annotations().get("a", "x").pinned);
    EXPECT_EQ(records.usage().record("b", "y")->clicked, 2);
    EXPECT_EQ(told.back(), (RecordChange{"b", ""}));
}

} // namespace
} // namespace quillon
