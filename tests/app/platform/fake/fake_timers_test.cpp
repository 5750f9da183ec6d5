#include <quillon/app/platform/fake/fake_timers.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;

struct FakeTimersTest : testing::Test {
    FakeClock clock;
    FakeTimers timers{clock};
    const Instant start = clock.steadyNow();
    std::vector<std::string> fired;

    std::function<void()> note(std::string name) {
        return [this, name] { fired.push_back(name); };
    }
};

TEST_F(FakeTimersTest, FiresWhatFallsDueInItsOrder) {
    const Subscription late = timers.after(Seconds(2), note("late"));
    const Subscription early = timers.after(Seconds(1), note("early"));
    const Subscription never = timers.after(Seconds(4), note("never"));
    timers.advance(Seconds(3));
    EXPECT_THAT(fired, ElementsAre("early", "late"));
    EXPECT_EQ(clock.steadyNow(), start + std::chrono::seconds(3));
    EXPECT_EQ(timers.running(), 1U);
}

TEST_F(FakeTimersTest, FiresThoseOfOneTimeInTheOrderOfTheirStart) {
    const Subscription first = timers.after(Seconds(1), note("first"));
    const Subscription second = timers.after(Seconds(1), note("second"));
    timers.advance(Seconds(1));
    EXPECT_THAT(fired, ElementsAre("first", "second"));
}

TEST_F(FakeTimersTest, TheClockStandsAtTheTimeThatFiredTheTimer) {
    std::vector<double> times;
    const Subscription tick = timers.every(
        Seconds(0.25), [&] { times.push_back(secondsBetween(start, clock.steadyNow()).count()); });
    timers.advance(Seconds(0.9));
    EXPECT_THAT(times, ElementsAre(0.25, 0.5, 0.75));
}

TEST_F(FakeTimersTest, ATimerMayEndItselfAndStartAnother) {
    Subscription second;
    Subscription first = timers.every(Seconds(1), [&] {
        fired.emplace_back("first");
        first.reset();
        second = timers.after(Seconds(1), note("second"));
    });
    timers.advance(Seconds(5));
    EXPECT_THAT(fired, ElementsAre("first", "second"));
    EXPECT_EQ(timers.running(), 0U);
}

TEST_F(FakeTimersTest, AnEndedTimerDoesNotFire) {
    Subscription tick = timers.every(Seconds(1), note("tick"));
    EXPECT_EQ(timers.running(Seconds(1)), 1U);
    tick.reset();
    timers.advance(Seconds(5));
    EXPECT_THAT(fired, ElementsAre());
}

TEST_F(FakeTimersTest, AHandleMayOutliveTheTimers) {
    Subscription tick;
    {
        FakeTimers others(clock);
        tick = others.every(Seconds(1), note("tick"));
    }
    tick.reset();
    EXPECT_THAT(fired, ElementsAre());
}

TEST_F(FakeTimersTest, WhatFellDueWhileOnlyTheClockMovedFiresWithTheNextAdvance) {
    const Subscription done = timers.after(Seconds(1), note("done"));
    clock.advance(Seconds(3));
    EXPECT_THAT(fired, ElementsAre());
    timers.advance(Seconds(0));
    EXPECT_THAT(fired, ElementsAre("done"));
    EXPECT_EQ(clock.steadyNow(), start + std::chrono::seconds(3));
}

} // namespace
} // namespace quillon
