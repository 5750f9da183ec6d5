#include <quillon/tests/app/platform/linux/x11/support/test_keys.h>
#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/x11_keyboard.h>

#include <linux/input-event-codes.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <gmock/gmock.h>

#include <cmath>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using namespace testkeys;

struct X11KeyboardTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        keyboard = std::make_unique<X11Keyboard>(x11, std::make_shared<RawInput>(x11));
        monitor = keyboard->onModifiersChanged([this](Modifiers set) { told.push_back(set); });
        events = x11->onEvent([this](const xcb_generic_event_t&) { ++eventCount; });
    }
    void TearDown() override {
        for (const std::uint8_t key : {letterA, leftAlt, leftSuper, leftControl, leftShift})
            client->keyUp(key);
        client->ungrab();
    }
    /// An observation that the server has been told of.
    std::unique_ptr<InputAges> observe() {
        auto ages = keyboard->observeInput();
        settle();
        return ages;
    }
    bool isPressed(const InputAges& ages, InputKind kind) const {
        return std::isfinite(ages.sinceLast(kind).count());
    }

    std::unique_ptr<X11Keyboard> keyboard;
    std::vector<Modifiers> told;
    int eventCount = 0;
    Subscription monitor;
    Subscription events;
};

TEST_F(X11KeyboardTest, TellsWhichModifiersAreDown) {
    EXPECT_EQ(keyboard->modifiers(), Modifiers());
    client->keyDown(leftAlt);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers::option);
    client->keyDown(leftSuper);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers::option | Modifiers::command);
    client->keyUp(leftAlt);
    client->keyDown(leftControl);
    client->keyDown(leftShift);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers::command | Modifiers::control | Modifiers::shift);
}

TEST_F(X11KeyboardTest, KnowsWhatIsDownFromTheStart) {
    client->keyDown(leftAlt);
    EXPECT_EQ(X11Keyboard(x11, std::make_shared<RawInput>(x11)).modifiers(), Modifiers::option);
}

TEST_F(X11KeyboardTest, AskingForTheModifiersAsksNotTheServer) {
    const auto before = requestsSoFar();
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(keyboard->modifiers(), Modifiers());
    EXPECT_EQ(requestsSoFar() - before, 1U) << "the question how many there were";
}

struct X11StickyKeysTest : X11KeyboardTest {
    void SetUp() override {
        X11KeyboardTest::SetUp();
        client->setStickyKeys(true);
    }
    void TearDown() override {
        client->setStickyKeys(false);
        X11KeyboardTest::TearDown();
    }
};

TEST_F(X11StickyKeysTest, AModifierThatWaitsForTheNextKeyIsHeld) {
    client->tap(leftSuper);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers::command);
    client->tap(letterA);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers());
}

TEST_F(X11StickyKeysTest, AModifierThatIsLockedIsNotHeldUntilItIsPressed) {
    client->tap(leftSuper);
    client->tap(leftSuper);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers());
    told.clear();
    client->tap(letterA);
    settle();
    EXPECT_THAT(told, IsEmpty());
    client->keyDown(leftSuper);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers::command);
    client->keyUp(leftSuper);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers());
}

TEST_F(X11KeyboardTest, TellsEveryChangeInItsOrder) {
    client->keyDown(leftSuper);
    client->keyDown(leftShift);
    client->keyUp(leftSuper);
    client->keyUp(leftShift);
    ASSERT_TRUE(waitFor([&] { return told.size() >= 4; }));
    EXPECT_THAT(
        told, ElementsAre(
                  Modifiers::command, Modifiers::command | Modifiers::shift, Modifiers::shift, Modifiers()));
}

TEST_F(X11KeyboardTest, LocksAreNoModifiers) {
    for (const int lock : {KEY_CAPSLOCK, KEY_NUMLOCK}) {
        client->keyDown(keyCode(lock));
        client->keyUp(keyCode(lock));
        EXPECT_EQ(keyboard->modifiers(), Modifiers());
        client->keyDown(keyCode(lock));
        client->keyUp(keyCode(lock));
    }
    settle();
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(X11KeyboardTest, ModifiersAreToldWhileAnotherClientHasGrabbedTheKeyboard) {
    ASSERT_TRUE(client->grabKeyboard());
    client->keyDown(leftAlt);
    EXPECT_TRUE(waitFor([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(Modifiers::option));
    EXPECT_EQ(keyboard->modifiers(), Modifiers::option);
}

TEST_F(X11KeyboardTest, AFloodOfChangedKeysIsAnsweredOnce) {
    settle();
    const auto before = requestsSoFar();
    for (int i = 0; i < 200; ++i) {
        client->changeSymbol(letterA, i % 2 == 0 ? XKB_KEY_b : XKB_KEY_a);
        client->keyDown(leftAlt);
        client->keyUp(leftAlt);
    }
    settle();
    EXPECT_LT(requestsSoFar() - before, 20U);
    EXPECT_EQ(keyboard->modifiers(), Modifiers());
}

TEST_F(X11KeyboardTest, TypingAndPointingDoNotWakeTheProgram) {
    settle();
    eventCount = 0;
    client->keyDown(letterA);
    client->keyUp(letterA);
    client->click(1);
    client->movePointer(10, 10);
    settle();
    EXPECT_EQ(eventCount, 0);
}

TEST_F(X11KeyboardTest, InputHasAnAgeWhileItIsObserved) {
    const auto ages = observe();
    for (const InputKind kind :
         {InputKind::keyDown, InputKind::leftMouseDown, InputKind::rightMouseDown, InputKind::otherMouseDown,
          InputKind::scrollWheel})
        EXPECT_FALSE(isPressed(*ages, kind));
    client->keyDown(letterA);
    ASSERT_TRUE(waitFor([&] { return isPressed(*ages, InputKind::keyDown); }));
    EXPECT_GE(ages->sinceLast(InputKind::keyDown).count(), 0);
    EXPECT_LT(ages->sinceLast(InputKind::keyDown).count(), 10);
    EXPECT_FALSE(isPressed(*ages, InputKind::leftMouseDown));
}

TEST_F(X11KeyboardTest, ButtonsAreToldApart) {
    const std::vector<std::pair<std::uint8_t, InputKind>> buttons{
        {1, InputKind::leftMouseDown}, {2, InputKind::otherMouseDown}, {3, InputKind::rightMouseDown},
        {4, InputKind::scrollWheel},   {5, InputKind::scrollWheel},    {6, InputKind::scrollWheel},
        {7, InputKind::scrollWheel},   {8, InputKind::otherMouseDown}};
    for (const auto& [button, kind] : buttons) {
        const auto ages = observe();
        client->click(button);
        EXPECT_TRUE(waitFor([&] { return isPressed(*ages, kind); })) << int{button};
        EXPECT_FALSE(isPressed(*ages, InputKind::keyDown));
        const InputKind other =
            kind == InputKind::scrollWheel ? InputKind::otherMouseDown : InputKind::scrollWheel;
        EXPECT_FALSE(isPressed(*ages, other)) << int{button};
    }
}

TEST_F(X11KeyboardTest, ModifierKeysAreNoKeyPresses) {
    const auto ages = observe();
    for (const std::uint8_t key : {leftAlt, leftSuper, leftControl, leftShift}) {
        client->keyDown(key);
        client->keyUp(key);
    }
    for (const int lock : {KEY_CAPSLOCK, KEY_CAPSLOCK, KEY_NUMLOCK, KEY_NUMLOCK}) {
        client->keyDown(keyCode(lock));
        client->keyUp(keyCode(lock));
    }
    settle();
    EXPECT_FALSE(isPressed(*ages, InputKind::keyDown));
}

TEST_F(X11KeyboardTest, InputIsObservedUnderAnotherClientsGrabs) {
    ASSERT_TRUE(client->grabKeyboard());
    ASSERT_TRUE(client->grabPointer());
    const auto ages = observe();
    client->keyDown(letterA);
    client->click(1);
    EXPECT_TRUE(waitFor(
        [&] { return isPressed(*ages, InputKind::keyDown) && isPressed(*ages, InputKind::leftMouseDown); }));
}

TEST_F(X11KeyboardTest, TheServerIsAskedForInputOnlyWhileAnObservationLives) {
    auto first = observe();
    auto second = observe();
    first.reset();
    client->click(1);
    ASSERT_TRUE(waitFor([&] { return isPressed(*second, InputKind::leftMouseDown); }));
    second.reset();
    settle();
    eventCount = 0;
    client->keyDown(letterA);
    client->click(1);
    settle();
    EXPECT_EQ(eventCount, 0);
}

TEST_F(X11KeyboardTest, AnObservationDoesNotKnowWhatWasBeforeIt) {
    const auto first = observe();
    client->click(1);
    ASSERT_TRUE(waitFor([&] { return isPressed(*first, InputKind::leftMouseDown); }));
    const auto second = observe();
    EXPECT_FALSE(isPressed(*second, InputKind::leftMouseDown));
}

TEST_F(X11KeyboardTest, AnObservationMayOutliveTheKeyboard) {
    const auto ages = observe();
    monitor.reset();
    keyboard.reset();
    client->click(1);
    settle();
    EXPECT_FALSE(isPressed(*ages, InputKind::rightMouseDown));
}

TEST_F(X11KeyboardTest, FollowsAChangeOfTheKeyboardsKeys) {
    client->keyDown(leftSuper);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers::command);
    client->keyUp(leftSuper);
    client->changeSymbol(leftSuper, XKB_KEY_Alt_L);
    settle();
    client->keyDown(leftSuper);
    settle();
    EXPECT_EQ(keyboard->modifiers(), Modifiers::option);
    client->keyUp(leftSuper);
    client->changeSymbol(leftSuper, XKB_KEY_Super_L);
}

struct X11LateKeyboardTest : X11KeyboardTest {
    X11LateKeyboardTest() { patience = X11Connection::mainThreadPatience; }
};

TEST_F(X11LateKeyboardTest, WhatIsDownWhenTheServerIsLateIsAskedForWhenItAnswersAgain) {
    client->keyDown(leftAlt);
    settle();
    client->grabServer();
    while (!x11->isLate())
        x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), x11->root()));
    const X11Keyboard late(x11, std::make_shared<RawInput>(x11));
    EXPECT_EQ(late.modifiers(), Modifiers());
    client->ungrabServer();
    EXPECT_TRUE(waitFor([&] { return late.modifiers() == Modifiers::option; }));
}

TEST_F(X11LateKeyboardTest, AServerThatDoesNotAnswerHoldsNobodyUp) {
    client->keyDown(leftAlt);
    ASSERT_TRUE(waitFor([&] { return keyboard->modifiers() == Modifiers::option; }));
    client->grabServer();
    EXPECT_EQ(keyboard->modifiers(), Modifiers::option);
    client->keyUp(leftAlt);
    client->ungrabServer();
    EXPECT_TRUE(waitFor([&] { return keyboard->modifiers() == Modifiers(); }));
}

} // namespace
} // namespace quillon
