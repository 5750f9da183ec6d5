#include <quillon/app/core/delayed_save.h>
#include <quillon/app/platform/fake/fake_clock.h>
#include <quillon/app/platform/fake/fake_timers.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

class DelayedSaveTest : public testing::Test {
  protected:
    FakeClock clock;
    FakeTimers timers{clock};
    int saves = 0;
    DelayedSave save{timers, [this] { ++saves; }};
};

TEST_F(DelayedSaveTest, SavesASecondAfterTheLastChange) {
    save.schedule();
    timers.advance(Seconds(0.9));
    save.schedule();
    timers.advance(Seconds(0.9));
    EXPECT_EQ(saves, 0);
    timers.advance(Seconds(0.2));
    EXPECT_EQ(saves, 1);
    timers.advance(Seconds(10));
    EXPECT_EQ(saves, 1);
}

TEST_F(DelayedSaveTest, SavesAtOnceOnRequestAndOnlyWhatIsPending) {
    save.flush();
    EXPECT_EQ(saves, 0);
    save.schedule();
    save.flush();
    EXPECT_EQ(saves, 1);
    timers.advance(Seconds(10));
    EXPECT_EQ(saves, 1);
}

TEST_F(DelayedSaveTest, CanBeCalledOff) {
    save.schedule();
    save.cancel();
    timers.advance(Seconds(10));
    EXPECT_EQ(saves, 0);
    EXPECT_EQ(timers.running(), 0U);
}

} // namespace
} // namespace quillon
