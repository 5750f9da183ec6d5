#include <quillon/kit/coach/hold_detector.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

namespace quillon {
namespace {

using Event = HoldDetector::Event;
using M = Modifiers;

constexpr M none;
constexpr M command = M::command;
constexpr M shiftCommand = M::shift | M::command;
constexpr auto nothing = std::nullopt;

/// Seconds after some start.
Instant at(double seconds) {
    return after(Instant(std::chrono::seconds(1'790'000'000)), Seconds(seconds));
}

HoldDetector commandFor(double delay) {
    return {command, Seconds(delay)};
}

/// Command held since 0 and shown at 0.5.
HoldDetector shown() {
    HoldDetector detector = commandFor(0.5);
    detector.modifiersChanged(command, at(0));
    EXPECT_EQ(detector.tick(at(0.5)), Event::show);
    return detector;
}

TEST(HoldDetector, StartsIdle) {
    HoldDetector detector = commandFor(0.5);
    EXPECT_EQ(detector.trigger(), command);
    EXPECT_EQ(detector.delay(), Seconds(0.5));
    EXPECT_EQ(detector.pressedAt(), std::nullopt);
    EXPECT_FALSE(detector.cancelled());
    EXPECT_FALSE(detector.showing());
    EXPECT_EQ(detector.tick(at(100)), nothing);
}

TEST(HoldDetector, ShowsOnceAfterTheDelayAndHidesOnRelease) {
    HoldDetector detector = commandFor(0.5);
    EXPECT_EQ(detector.modifiersChanged(command, at(0)), nothing);
    EXPECT_EQ(detector.pressedAt(), at(0));
    EXPECT_EQ(detector.tick(at(0.4)), nothing);
    EXPECT_FALSE(detector.showing());
    EXPECT_EQ(detector.tick(at(0.5)), Event::show);
    EXPECT_TRUE(detector.showing());
    EXPECT_EQ(detector.tick(at(0.6)), nothing);
    EXPECT_EQ(detector.modifiersChanged(none, at(1)), Event::hide);
    EXPECT_EQ(detector, commandFor(0.5));
}

TEST(HoldDetector, ALateTickShowsAsWell) {
    HoldDetector detector = commandFor(0.5);
    detector.modifiersChanged(command, at(0));
    EXPECT_EQ(detector.tick(at(30)), Event::show);
}

TEST(HoldDetector, WithoutADelayTheFirstTickShows) {
    HoldDetector detector = commandFor(0);
    detector.modifiersChanged(command, at(0));
    EXPECT_EQ(detector.tick(at(0)), Event::show);
}

TEST(HoldDetector, KeepsTheTimeOfTheFirstPress) {
    HoldDetector detector = commandFor(0.5);
    detector.modifiersChanged(command, at(0));
    EXPECT_EQ(detector.modifiersChanged(command, at(0.4)), nothing);
    EXPECT_EQ(detector.pressedAt(), at(0));
    EXPECT_EQ(detector.tick(at(0.5)), Event::show);
}

TEST(HoldDetector, AnotherModifierSpoilsTheHoldForGood) {
    HoldDetector detector = commandFor(0.5);
    detector.modifiersChanged(command, at(0));
    EXPECT_EQ(detector.modifiersChanged(shiftCommand, at(0.1)), nothing);
    EXPECT_TRUE(detector.cancelled());
    EXPECT_EQ(detector.tick(at(1)), nothing);
    EXPECT_EQ(detector.modifiersChanged(command, at(1.1)), nothing);
    EXPECT_TRUE(detector.cancelled()) << "the trigger was never let go";
    EXPECT_EQ(detector.tick(at(5)), nothing);
}

TEST(HoldDetector, PressingBothAtOnceIsSpoiledUntilRelease) {
    HoldDetector detector = commandFor(0.5);
    EXPECT_EQ(detector.modifiersChanged(shiftCommand, at(0)), nothing);
    EXPECT_TRUE(detector.cancelled());
    EXPECT_EQ(detector.pressedAt(), std::nullopt);
    // Only now is the trigger held alone: a hold of its own.
    EXPECT_EQ(detector.modifiersChanged(command, at(0.2)), nothing);
    EXPECT_FALSE(detector.cancelled());
    EXPECT_EQ(detector.pressedAt(), at(0.2));
    EXPECT_EQ(detector.tick(at(0.6)), nothing);
    EXPECT_EQ(detector.tick(at(0.7)), Event::show);
}

TEST(HoldDetector, OtherInputSpoilsTheHold) {
    HoldDetector detector = commandFor(0.5);
    detector.modifiersChanged(command, at(0));
    detector.otherInput();
    EXPECT_EQ(detector.tick(at(1)), nothing);
    EXPECT_EQ(detector.modifiersChanged(none, at(1.1)), nothing);
    detector.modifiersChanged(command, at(2));
    EXPECT_EQ(detector.tick(at(2.5)), Event::show) << "a new press is a new hold";
}

TEST(HoldDetector, OtherInputWithoutAHoldMeansNothing) {
    HoldDetector detector = commandFor(0.5);
    detector.otherInput();
    EXPECT_EQ(detector, commandFor(0.5));
}

TEST(HoldDetector, StaysShownWhateverElseIsPressed) {
    HoldDetector detector = shown();
    const HoldDetector before = detector;
    detector.otherInput();
    EXPECT_EQ(detector, before);
    EXPECT_EQ(detector.modifiersChanged(shiftCommand, at(1)), nothing);
    EXPECT_EQ(detector, before);
    EXPECT_EQ(detector.modifiersChanged(command, at(1.5)), nothing);
    EXPECT_EQ(detector, before);
    EXPECT_EQ(detector.modifiersChanged(none, at(2)), Event::hide);
}

TEST(HoldDetector, HidesWhenTheTriggerGoesAndOthersStay) {
    HoldDetector detector = shown();
    detector.modifiersChanged(shiftCommand, at(1));
    EXPECT_EQ(detector.modifiersChanged(M::shift, at(2)), Event::hide);
    EXPECT_EQ(detector, commandFor(0.5));
}

TEST(HoldDetector, ReleasingWhatNeverShowedSaysNothing) {
    HoldDetector detector = commandFor(0.5);
    detector.modifiersChanged(command, at(0));
    EXPECT_EQ(detector.modifiersChanged(none, at(0.1)), nothing);
    EXPECT_EQ(detector.modifiersChanged(none, at(0.2)), nothing);
    EXPECT_EQ(detector, commandFor(0.5));
}

TEST(HoldDetector, OtherModifiersAloneMeanNothing) {
    HoldDetector detector = commandFor(0.5);
    for (const M held : {M::shift, M::control | M::option, none})
        EXPECT_EQ(detector.modifiersChanged(held, at(0)), nothing);
    EXPECT_EQ(detector, commandFor(0.5));
}

TEST(HoldDetector, ATriggerOfTwoModifiersMustBeWhole) {
    HoldDetector detector{M::control | M::option, Seconds(0.5)};
    EXPECT_EQ(detector.modifiersChanged(M::control, at(0)), nothing);
    EXPECT_EQ(detector.pressedAt(), std::nullopt);
    detector.modifiersChanged(M::control | M::option, at(1));
    EXPECT_EQ(detector.tick(at(1.5)), Event::show);
    EXPECT_EQ(detector.modifiersChanged(M::option, at(2)), Event::hide);
}

TEST(HoldDetector, AnEmptySetIsNoSupersetOfAnything) {
    HoldDetector detector = shown();
    EXPECT_EQ(detector.modifiersChanged(none, at(1)), Event::hide);
    EXPECT_FALSE(detector.cancelled());
}

TEST(HoldDetector, ShowsAndHidesAlternateForAnyInput) {
    std::mt19937_64 random(5);
    HoldDetector detector = commandFor(0.3);
    double now = 0;
    bool showing = false;
    int shows = 0;
    for (int step = 0; step < 20'000; ++step) {
        now += static_cast<double>(random() % 200) / 1000;
        std::optional<Event> event;
        switch (random() % 8) {
        case 0:
            event = detector.modifiersChanged(M(static_cast<std::int64_t>(random() % 16)), at(now));
            break;
        case 1: event = detector.modifiersChanged(none, at(now)); break;
        case 2: event = detector.modifiersChanged(command, at(now)); break;
        case 3: detector.otherInput(); break;
        default: event = detector.tick(at(now)); break;
        }
        if (event == Event::show) {
            ASSERT_FALSE(showing);
            ASSERT_FALSE(detector.cancelled());
            ASSERT_FALSE(secondsBetween(*detector.pressedAt(), at(now)) < Seconds(0.3));
            ++shows;
        }
        if (event == Event::hide) {
            ASSERT_TRUE(showing);
        }
        if (event)
            showing = event == Event::show;
        ASSERT_EQ(detector.showing(), showing);
    }
    EXPECT_GT(shows, 100);
}

} // namespace
} // namespace quillon
