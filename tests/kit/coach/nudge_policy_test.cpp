#include <quillon/kit/coach/nudge_policy.h>

#include <gtest/gtest.h>

#include <limits>

namespace quillon {
namespace {

const Instant now(std::chrono::seconds(1'790'000'000));

UsageRecord nudgedBefore(double seconds) {
    return {.lastNudged = after(now, Seconds(-seconds))};
}

bool nudges(const std::optional<UsageRecord>& record, const Annotation& annotation = {}) {
    return defaultNudgePolicy.shouldNudge(record, annotation, now);
}

TEST(NudgePolicy, RestsTenSecondsAndGraduatesAfterFive) {
    EXPECT_EQ(defaultNudgePolicy, (NudgePolicy{Seconds(10), 5}));
}

TEST(NudgePolicy, ACommandGraduatesOnceTypingLeadsByFive) {
    EXPECT_FALSE(defaultNudgePolicy.hasGraduated({}));
    EXPECT_FALSE(defaultNudgePolicy.hasGraduated({.clicked = 3, .typed = 7}));
    EXPECT_TRUE(defaultNudgePolicy.hasGraduated({.clicked = 3, .typed = 8}));
}

TEST(NudgePolicy, NudgesForACommandNeverSeen) {
    EXPECT_TRUE(nudges(std::nullopt));
    EXPECT_TRUE(nudges(UsageRecord()));
}

TEST(NudgePolicy, NeverNudgesForAMutedCommand) {
    for (const auto& record :
         {std::optional<UsageRecord>(), std::optional(UsageRecord()),
          std::optional(UsageRecord{.clicked = 99})})
        EXPECT_FALSE(nudges(record, {.muted = true}));
}

TEST(NudgePolicy, RestsAfterANudge) {
    EXPECT_FALSE(nudges(nudgedBefore(0)));
    EXPECT_FALSE(nudges(nudgedBefore(9.9)));
    EXPECT_FALSE(nudges(nudgedBefore(9.999999)));
    EXPECT_TRUE(nudges(nudgedBefore(10)));
    EXPECT_TRUE(nudges(nudgedBefore(1e6)));
}

TEST(NudgePolicy, ANudgeInTheFutureRestsToo) {
    EXPECT_FALSE(nudges(nudgedBefore(-1)));
    EXPECT_FALSE(nudges(nudgedBefore(-1e9)));
}

TEST(NudgePolicy, StopsWhenTypingLeadsByFive) {
    EXPECT_TRUE(nudges(UsageRecord{.clicked = 3, .typed = 7}));
    EXPECT_FALSE(nudges(UsageRecord{.clicked = 3, .typed = 8}));
    EXPECT_FALSE(nudges(UsageRecord{.clicked = 0, .typed = 5}));
    EXPECT_TRUE(nudges(UsageRecord{.clicked = 1000, .typed = 1004}));
    EXPECT_TRUE(nudges(UsageRecord{.clicked = 9, .typed = 0}));
}

TEST(NudgePolicy, RestingComesBeforeGraduating) {
    UsageRecord record = nudgedBefore(1);
    record.clicked = 100;
    EXPECT_FALSE(nudges(record));
    record = nudgedBefore(100);
    record.typed = 100;
    EXPECT_FALSE(nudges(record));
}

TEST(NudgePolicy, LooksAtNothingElse) {
    EXPECT_TRUE(nudges(UsageRecord{.practiceRight = 50, .practiceWrong = 1, .lastClicked = now}));
    EXPECT_TRUE(nudges(std::nullopt, {.pinned = true, .note = "x"}));
}

TEST(NudgePolicy, FollowsItsOwnNumbers) {
    const NudgePolicy policy{Seconds(0.5), -1};
    EXPECT_TRUE(policy.shouldNudge(UsageRecord{.clicked = 2}, {}, now));
    EXPECT_FALSE(policy.shouldNudge(UsageRecord{.clicked = 1}, {}, now));
    EXPECT_FALSE(
        policy.shouldNudge(UsageRecord{.clicked = 9, .lastNudged = after(now, Seconds(-0.4))}, {}, now));
}

TEST(NudgePolicyDeathTest, AnOverflowingDifferenceIsAProgramError) {
    constexpr Count largest = std::numeric_limits<Count>::max();
    EXPECT_DEATH(nudges(UsageRecord{.clicked = -2, .typed = largest}), "a counter left the range");
}

} // namespace
} // namespace quillon
