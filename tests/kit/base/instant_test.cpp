#include <quillon/kit/base/instant.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;

TEST(Instant, CountsSecondsBetweenTwoInEitherDirection) {
    const Instant start(1000s);
    EXPECT_EQ(secondsBetween(start, start + 2500ms), Seconds(2.5));
    EXPECT_EQ(secondsBetween(start + 2500ms, start), Seconds(-2.5));
}

TEST(Instant, MovesByRoundedMicroseconds) {
    const Instant start(0s);
    EXPECT_EQ(after(start, Seconds(0.8)), Instant(800ms));
    EXPECT_EQ(after(start, Seconds(1e-7)), start);
    EXPECT_EQ(after(start, Seconds(-0.25)), Instant(-250ms));
}

TEST(Instant, ADelayIsOverExactlyWhenItWasReached) {
    for (const double delay : {0.1, 0.3, 0.5, 0.7, 0.8, 1.1, 2.0}) {
        const Instant start(1'790'000'000s);
        EXPECT_FALSE(secondsBetween(start, after(start, Seconds(delay))) < Seconds(delay)) << delay;
        EXPECT_LT(secondsBetween(start, after(start, Seconds(delay)) - 1us), Seconds(delay));
    }
}

TEST(Instant, TheDistantPastIsTheStartOfTheYearOne) {
    EXPECT_EQ(distantPast, Instant(-62'135'596'800s));
}

} // namespace
} // namespace quillon
