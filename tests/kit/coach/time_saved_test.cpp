#include <quillon/kit/coach/time_saved.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(TimeSaved, GrowsWithEveryTypedUse) {
    EXPECT_EQ(timeSaved(0), Seconds(0));
    EXPECT_NEAR(savedByTyping.count(), 2.2, 1e-9);
    EXPECT_NEAR(timeSaved(100).count(), 220, 1e-6);
}

} // namespace
} // namespace quillon
