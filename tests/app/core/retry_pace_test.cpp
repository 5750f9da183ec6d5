#include <quillon/app/core/retry_pace.h>

#include <gtest/gtest.h>

#include <vector>

namespace quillon {
namespace {

std::vector<int> triesWithin(RetryPace& pace, int ticks) {
    std::vector<int> tries;
    for (int tick = 1; tick <= ticks; ++tick)
        if (pace.tick())
            tries.push_back(tick);
    return tries;
}

TEST(RetryPaceTest, TriesEverMoreRarelyAndGivesUp) {
    RetryPace pace;
    EXPECT_EQ(triesWithin(pace, 1000), (std::vector{1, 3, 7, 15, 31, 63}));
}

TEST(RetryPaceTest, BeginsAgain) {
    RetryPace pace;
    triesWithin(pace, 1000);
    pace.restart();
    EXPECT_EQ(triesWithin(pace, 4), (std::vector{1, 3}));
}

} // namespace
} // namespace quillon
