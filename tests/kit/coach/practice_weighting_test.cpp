#include <quillon/kit/coach/practice_weighting.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gtest/gtest.h>

#include <limits>

namespace quillon {
namespace {

using PracticeWeighting::weight;

TEST(PracticeWeighting, IsOneWithoutAHistory) {
    EXPECT_EQ(weight(std::nullopt, false), 1);
    EXPECT_EQ(weight(UsageRecord(), false), 1);
    EXPECT_EQ(weight(std::nullopt, true), 1.5);
}

TEST(PracticeWeighting, GrowsWithClicksAgainstTypedUses) {
    EXPECT_EQ(weight(UsageRecord{.clicked = 10}, false), 31);
    EXPECT_EQ(weight(UsageRecord{.clicked = 10}, true), 46.5);
    EXPECT_EQ(weight(UsageRecord{.clicked = 10, .typed = 2}, false), 11);
    EXPECT_EQ(weight(UsageRecord{.clicked = 1, .typed = 2}, false), 2);
}

TEST(PracticeWeighting, GrowsWithWrongAnswersUpToSix) {
    EXPECT_EQ(weight(UsageRecord{.practiceWrong = 1}, false), 2.5);
    EXPECT_EQ(weight(UsageRecord{.practiceWrong = 6}, false), 10);
    EXPECT_EQ(weight(UsageRecord{.practiceWrong = 9}, false), 10);
}

TEST(PracticeWeighting, ShrinksWithRightAnswersUpToThree) {
    EXPECT_EQ(weight(UsageRecord{.practiceRight = 1}, false), 0.75);
    EXPECT_EQ(weight(UsageRecord{.practiceRight = 3}, false), 0.25);
    EXPECT_EQ(weight(UsageRecord{.practiceRight = 10}, false), 0.25);
}

TEST(PracticeWeighting, HalvesForWhatIsTypedWellAndNeverClicked) {
    EXPECT_EQ(weight(UsageRecord{.typed = 4}, false), 1);
    EXPECT_EQ(weight(UsageRecord{.typed = 5}, false), 0.5);
    EXPECT_EQ(weight(UsageRecord{.typed = 5}, true), 0.75);
    EXPECT_EQ(weight(UsageRecord{.clicked = 1, .typed = 5}, false), 1.5);
}

TEST(PracticeWeighting, IsNeverLessThanAFifth) {
    EXPECT_EQ(weight(UsageRecord{.typed = 9, .practiceRight = 3}, false), 0.2);
    EXPECT_EQ(weight(UsageRecord{.typed = 9, .practiceRight = 3}, true), 0.2) << "0.1875";
    EXPECT_EQ(weight(UsageRecord{.typed = 5, .practiceRight = 2}, false), 0.25);
    EXPECT_EQ(weight(UsageRecord{.clicked = -100}, false), 0.2);
}

TEST(PracticeWeighting, TakesEverythingInOrder) {
    // (1 + 3 * 2 / 4 + 1.5 * 2 - 0.25 * 1) * 1.5
    EXPECT_EQ(weight(UsageRecord{2, 3, 1, 2}, true), 7.875);
    // Three multiplies before the division rounds.
    EXPECT_EQ(weight(UsageRecord{.clicked = 5, .typed = 6}, false), 1 + 15.0 / 7);
}

TEST(PracticeWeightingDeathTest, AnOverflowingCounterIsAProgramError) {
    EXPECT_DEATH(
        weight(UsageRecord{.typed = std::numeric_limits<Count>::max()}, false), "a counter left the range");
}

} // namespace
} // namespace quillon
