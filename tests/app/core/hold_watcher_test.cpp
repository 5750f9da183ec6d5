#include <quillon/app/core/hold_watcher.h>

#include <quillon/app/platform/fake/fake_clock.h>
#include <quillon/app/platform/fake/fake_keyboard.h>
#include <quillon/app/platform/fake/fake_timers.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr Seconds idle{0.25};
constexpr Seconds fast{1.0 / 30};

class HoldWatcherTest : public testing::Test {
  protected:
    HoldWatcherTest() {
        m_watcher.onShow = [this] { ++m_shown; };
        m_watcher.onHide = [this] { ++m_hidden; };
    }

    FakeClock m_clock;
    FakeTimers m_timers{m_clock};
    FakeKeyboard m_keyboard{m_clock};
    HoldWatcher m_watcher{m_keyboard, m_clock, m_timers, HoldDetector(Modifiers::command, Seconds(0.8))};
    int m_shown = 0;
    int m_hidden = 0;
};

TEST_F(HoldWatcherTest, ShowsAfterTheDelayAndHidesOnRelease) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(0.75));
    EXPECT_EQ(m_shown, 0);
    m_timers.advance(Seconds(0.1));
    EXPECT_EQ(m_shown, 1);
    EXPECT_EQ(m_hidden, 0);
    m_keyboard.release(Modifiers::command);
    EXPECT_EQ(m_shown, 1);
    EXPECT_EQ(m_hidden, 1);
}

TEST_F(HoldWatcherTest, ShowsAtMostOneFastPollAfterTheDelay) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    const Instant pressed = m_clock.steadyNow();
    Instant shown{};
    m_watcher.onShow = [&] { shown = m_clock.steadyNow(); };
    m_timers.advance(Seconds(2));
    EXPECT_GE(secondsBetween(pressed, shown), Seconds(0.8));
    EXPECT_LE(secondsBetween(pressed, shown), Seconds(0.8) + fast + Seconds(0.001));
}

TEST_F(HoldWatcherTest, NeverShowsWhileAnotherModifierIsHeldToo) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command | Modifiers::shift);
    m_timers.advance(Seconds(3));
    EXPECT_EQ(m_shown, 0);
}

TEST_F(HoldWatcherTest, IsSpoiledByEachKindOfInput) {
    for (const InputKind kind :
         {InputKind::keyDown, InputKind::leftMouseDown, InputKind::rightMouseDown, InputKind::otherMouseDown,
          InputKind::scrollWheel}) {
        m_watcher.start();
        m_keyboard.press(Modifiers::command);
        m_timers.advance(Seconds(0.3));
        m_keyboard.input(kind);
        m_timers.advance(Seconds(3));
        EXPECT_EQ(m_shown, 0) << int(kind);
        m_keyboard.release(Modifiers::command);
        m_timers.advance(Seconds(1));
    }
}

TEST_F(HoldWatcherTest, IsNotSpoiledByInputTogetherWithThePress) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_keyboard.input(InputKind::keyDown);
    m_timers.advance(Seconds(1));
    EXPECT_EQ(m_shown, 1);
}

TEST_F(HoldWatcherTest, TellsInputWithThePressFromInputAfterItByTwentyMilliseconds) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(0.018));
    m_keyboard.input(InputKind::keyDown);
    m_timers.advance(Seconds(1));
    EXPECT_EQ(m_shown, 1);
    m_keyboard.release(Modifiers::command);

    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(0.022));
    m_keyboard.input(InputKind::keyDown);
    m_timers.advance(Seconds(1));
    EXPECT_EQ(m_shown, 1);
}

TEST_F(HoldWatcherTest, IsNotSpoiledByInputBeforeThePress) {
    m_watcher.start();
    const auto observation = m_keyboard.observeInput();
    m_keyboard.input(InputKind::leftMouseDown);
    m_timers.advance(Seconds(0.5));
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(1));
    EXPECT_EQ(m_shown, 1);
}

TEST_F(HoldWatcherTest, ShowsAgainAfterASpoiledHoldWasLetGo) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(0.3));
    m_keyboard.input(InputKind::keyDown);
    m_timers.advance(Seconds(1));
    m_keyboard.release(Modifiers::command);
    m_timers.advance(Seconds(0.1));
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(1));
    EXPECT_EQ(m_shown, 1);
}

TEST_F(HoldWatcherTest, StaysShownWhenOtherInputFollows) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(1));
    m_keyboard.input(InputKind::leftMouseDown);
    m_keyboard.press(Modifiers::shift);
    m_timers.advance(Seconds(1));
    EXPECT_EQ(m_shown, 1);
    EXPECT_EQ(m_hidden, 0);
    m_keyboard.set({});
    EXPECT_EQ(m_hidden, 1);
}

TEST_F(HoldWatcherTest, ObservesOtherInputOnlyWhileAHoldIsTimed) {
    m_watcher.start();
    EXPECT_EQ(m_keyboard.observations(), 0U);
    EXPECT_EQ(m_timers.running(fast), 0U);
    m_keyboard.press(Modifiers::shift);
    m_timers.advance(Seconds(1));
    EXPECT_EQ(m_keyboard.observations(), 0U);
    m_keyboard.set(Modifiers::command);
    EXPECT_EQ(m_keyboard.observations(), 1U);
    EXPECT_TRUE(m_watcher.isTiming());
    m_keyboard.set({});
    EXPECT_EQ(m_keyboard.observations(), 0U);
    EXPECT_FALSE(m_watcher.isTiming());
}

TEST_F(HoldWatcherTest, RepairsAMissedReleaseWithinAQuarterOfASecond) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(1));
    m_keyboard.setSilently({});
    m_timers.advance(idle);
    EXPECT_EQ(m_hidden, 1);
}

TEST_F(HoldWatcherTest, NoticesAMissedPressWithinAQuarterOfASecond) {
    m_watcher.start();
    m_keyboard.setSilently(Modifiers::command);
    m_timers.advance(idle + Seconds(0.8) + fast);
    EXPECT_EQ(m_shown, 1);
}

TEST_F(HoldWatcherTest, StartedTwiceWatchesOnce) {
    m_watcher.start();
    m_watcher.start();
    EXPECT_EQ(m_keyboard.monitors(), 1U);
    EXPECT_EQ(m_timers.running(idle), 1U);
}

TEST_F(HoldWatcherTest, RestartedDuringAHoldGoesOnTimingIt) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(0.5));
    m_watcher.start();
    m_timers.advance(Seconds(0.4));
    EXPECT_EQ(m_shown, 1);
}

TEST_F(HoldWatcherTest, StoppedLeavesNothingRunning) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_watcher.stop();
    EXPECT_EQ(m_keyboard.monitors(), 0U);
    EXPECT_EQ(m_keyboard.observations(), 0U);
    EXPECT_EQ(m_timers.running(), 0U);
}

TEST_F(HoldWatcherTest, TakesANewTriggerAndDelay) {
    m_watcher.start();
    m_watcher.replaceDetector(HoldDetector(Modifiers::control, Seconds(0.3)));
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(2));
    m_keyboard.set(Modifiers::control);
    m_timers.advance(Seconds(0.4));
    EXPECT_EQ(m_shown, 1);
}

TEST_F(HoldWatcherTest, HidesWhenItsDetectorIsReplacedWhileShowing) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_timers.advance(Seconds(1));
    m_watcher.replaceDetector(HoldDetector(Modifiers::control, Seconds(0.3)));
    EXPECT_EQ(m_hidden, 1);
    EXPECT_EQ(m_keyboard.observations(), 1U);
    m_timers.advance(fast);
    EXPECT_EQ(m_keyboard.observations(), 0U);
}

TEST_F(HoldWatcherTest, IsNotDisturbedWhenTheTimeOfDayJumps) {
    m_watcher.start();
    m_keyboard.press(Modifiers::command);
    m_clock.setNow(m_clock.now() + std::chrono::hours(24));
    m_timers.advance(Seconds(0.5));
    EXPECT_EQ(m_shown, 0);
}

} // namespace
} // namespace quillon
