#include <quillon/app/core/click_response.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr Instant now = std::chrono::sys_days{std::chrono::year{2024} / 5 / 1};
constexpr ClickResponse nothing{.counts = false, .nudges = false};
constexpr ClickResponse countsOnly{.counts = true, .nudges = false};
constexpr ClickResponse countsAndNudges{.counts = true, .nudges = true};

ClickResponse
response(const std::optional<UsageRecord>& record, const Annotation& annotation = {}, bool nudgesOn = true) {
    return responseToClick(record, annotation, nudgesOn, defaultNudgePolicy, now);
}

TEST(ClickResponse, TheFirstClickCountsAndNudges) {
    EXPECT_EQ(response(std::nullopt), countsAndNudges);
    EXPECT_EQ(response(UsageRecord{}), countsAndNudges);
}

TEST(ClickResponse, AClickWithinASecondIsTheSame) {
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastClicked = now}), nothing);
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastClicked = after(now, Seconds(-0.5))}), nothing);
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastClicked = after(now, Seconds(-0.999))}), nothing);
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastClicked = after(now, Seconds(-1))}), countsAndNudges);
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastClicked = after(now, Seconds(-1.5))}), countsAndNudges);
}

TEST(ClickResponse, NoClickIsLostToAClockThatWasSetBack) {
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastClicked = after(now, Seconds(0.5))}), countsAndNudges);
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastClicked = after(now, Seconds(1e6))}), countsAndNudges);
}

TEST(ClickResponse, WithoutNudgesClicksCountStill) {
    EXPECT_EQ(response(std::nullopt, {}, false), countsOnly);
}

TEST(ClickResponse, AMutedCommandIsCountedOnly) {
    EXPECT_EQ(response(std::nullopt, {.muted = true}), countsOnly);
    EXPECT_EQ(response(std::nullopt, {.pinned = true, .note = "mine"}), countsAndNudges);
}

TEST(ClickResponse, ACommandThatWasNudgedJustNowIsCountedOnly) {
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastNudged = after(now, Seconds(-9.9))}), countsOnly);
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastNudged = after(now, Seconds(-10))}), countsAndNudges);
    EXPECT_EQ(response(UsageRecord{.clicked = 1, .lastNudged = after(now, Seconds(60))}), countsOnly);
}

TEST(ClickResponse, ThisClickCountsForTheQuestionWhetherToNudge) {
    EXPECT_EQ(response(UsageRecord{.clicked = 2, .typed = 7}), countsAndNudges) << "3 to 7 with this one";
    EXPECT_EQ(response(UsageRecord{.clicked = 2, .typed = 8}), countsOnly);
    EXPECT_EQ(response(UsageRecord{.clicked = 3, .typed = 8}), countsAndNudges);
}

} // namespace
} // namespace quillon
