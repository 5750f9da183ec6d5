#include <quillon/app/platform/fake/fake_keyboard.h>

#include <gmock/gmock.h>

#include <cmath>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;

struct FakeKeyboardTest : testing::Test {
    FakeClock clock;
    FakeKeyboard keyboard{clock};
};

TEST_F(FakeKeyboardTest, TellsTheFullSetOnceWithEveryChange) {
    std::vector<Modifiers> told;
    const Subscription monitor = keyboard.onModifiersChanged([&](Modifiers set) { told.push_back(set); });
    keyboard.press(Modifiers::control);
    keyboard.press(Modifiers::shift);
    keyboard.press(Modifiers::shift);
    keyboard.release(Modifiers::control);
    EXPECT_THAT(
        told, ElementsAre(Modifiers::control, Modifiers::control | Modifiers::shift, Modifiers::shift));
    EXPECT_EQ(keyboard.modifiers(), Modifiers::shift);
}

TEST_F(FakeKeyboardTest, AMissedEventShowsOnlyWhenAsked) {
    bool told = false;
    const Subscription monitor = keyboard.onModifiersChanged([&](Modifiers) { told = true; });
    keyboard.setSilently(Modifiers::option);
    EXPECT_FALSE(told);
    EXPECT_EQ(keyboard.modifiers(), Modifiers::option);
}

TEST_F(FakeKeyboardTest, CountsMonitorsAndObservations) {
    Subscription monitor = keyboard.onModifiersChanged([](Modifiers) {});
    std::unique_ptr<InputAges> ages = keyboard.observeInput();
    EXPECT_EQ(keyboard.monitors(), 1U);
    EXPECT_EQ(keyboard.observations(), 1U);
    monitor.reset();
    ages.reset();
    EXPECT_EQ(keyboard.monitors(), 0U);
    EXPECT_EQ(keyboard.observations(), 0U);
}

TEST_F(FakeKeyboardTest, InputHasAnAgeFromTheBeginningOfTheObservation) {
    keyboard.input(InputKind::keyDown);
    clock.advance(Seconds(1));
    const std::unique_ptr<InputAges> ages = keyboard.observeInput();
    EXPECT_TRUE(std::isinf(ages->sinceLast(InputKind::keyDown).count()));
    keyboard.input(InputKind::scrollWheel);
    clock.advance(Seconds(0.5));
    EXPECT_DOUBLE_EQ(ages->sinceLast(InputKind::scrollWheel).count(), 0.5);
    EXPECT_TRUE(std::isinf(ages->sinceLast(InputKind::keyDown).count()));
}

} // namespace
} // namespace quillon
