#include <quillon/tests/app/platform/linux/x11/support/test_keys.h>
#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/x11_typed_keys.h>
#include <quillon/app/platform/qt/thread_background.h>

#include <linux/input-event-codes.h>
#include <xcb/xinput.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using namespace testkeys;

struct X11TypedKeysTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        input = std::make_shared<RawInput>(x11);
        keyboard = std::make_unique<X11Keyboard>(x11, input);
        keys = std::make_unique<X11TypedKeys>(
            X11TypedKeys::Needs{
                .keyboard = *keyboard,
                .background = background,
                .hasOwnFocus = [this] { return ownFocus; },
                .display = x11Display()},
            input);
        events = x11->onEvent([this](const xcb_generic_event_t& event) {
            keyEvents += event.response_type == XCB_GE_GENERIC ? 1 : 0;
        });
    }
    void TearDown() override {
        for (const std::uint8_t key : {letterA, letterS, leftAlt, leftSuper, leftControl, leftShift})
            client->keyUp(key);
    }

    /// Listens, and waits until the keyboard's map is known: the first stroke tells.
    void listen() {
        listening = keys->onKeyStroke([this](const KeyStroke& stroke) {
            told.push_back(stroke.modifiers.glyphs() + stroke.characters);
            codes.push_back(stroke.keyCode);
        });
        hold(leftControl);
        ASSERT_TRUE(waitFor([this] {
            client->tap(letterA);
            settle();
            return !told.empty();
        }));
        release(leftControl);
        told.clear();
        codes.clear();
        keyEvents = 0;
    }
    /// Presses a modifier as a person does: what hears of it has time to before the next key.
    void hold(std::uint8_t modifier) {
        client->keyDown(modifier);
        settle();
        settle();
    }
    void release(std::uint8_t modifier) {
        client->keyUp(modifier);
        settle();
        settle();
    }
    void tap(std::uint8_t key) {
        client->tap(key);
        settle();
    }
    /// Whether the server is asked for raw events by this program, as the server tells.
    bool isSelected() {
        const auto cookie = xcb_input_xi_get_selected_events(x11->xcb(), x11->root());
        const auto reply = x11->reply<xcb_input_xi_get_selected_events_reply_t>(cookie);
        std::uint32_t mask = 0;
        for (auto it = xcb_input_xi_get_selected_events_masks_iterator(reply.get()); it.rem > 0;
             xcb_input_event_mask_next(&it))
            for (int i = 0; i < xcb_input_event_mask_mask_length(it.data); ++i)
                mask |= xcb_input_event_mask_mask(it.data)[i];
        return mask != 0;
    }

    ThreadBackground background;
    std::shared_ptr<RawInput> input;
    std::unique_ptr<X11Keyboard> keyboard;
    std::unique_ptr<X11TypedKeys> keys;
    bool ownFocus = false;
    std::vector<std::string> told;
    std::vector<std::int64_t> codes;
    int keyEvents = 0;
    Subscription listening;
    Subscription events;
};

TEST_F(X11TypedKeysTest, TellsPressesWithControlOrSuper) {
    listen();
    hold(leftControl);
    tap(letterS);
    hold(leftShift);
    tap(letterS);
    release(leftShift);
    release(leftControl);
    hold(leftSuper);
    tap(letterA);
    EXPECT_THAT(told, ElementsAre("⌃s", "⌃⇧S", "⌘a"));
    EXPECT_THAT(codes, ElementsAre(1, 1, 0));
}

TEST_F(X11TypedKeysTest, TheServerIsNotAskedForKeysWhileNeitherIsHeld) {
    EXPECT_FALSE(isSelected());
    listen();
    EXPECT_FALSE(isSelected());
    for (const std::uint8_t modifier : {leftAlt, leftShift}) {
        hold(modifier);
        EXPECT_FALSE(isSelected());
        release(modifier);
    }
    for (const std::uint8_t modifier : {leftControl, leftSuper}) {
        hold(modifier);
        EXPECT_TRUE(isSelected());
        release(modifier);
        EXPECT_FALSE(isSelected());
    }
}

TEST_F(X11TypedKeysTest, PlainTypingDoesNotReachTheProgram) {
    listen();
    for (const std::uint8_t modifier : {std::uint8_t{0}, leftShift, leftAlt}) {
        if (modifier != 0)
            hold(modifier);
        tap(letterA);
        tap(letterS);
        if (modifier != 0)
            release(modifier);
    }
    EXPECT_EQ(keyEvents, 0);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(X11TypedKeysTest, WhatIsTypedRightAfterAModifierIsNotTold) {
    listen();
    hold(leftControl);
    // Before the program can learn that the modifier is up.
    client->keyUp(leftControl);
    client->tap(letterA);
    settle();
    settle();
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(isSelected());
}

TEST_F(X11TypedKeysTest, KeysAreAskedForOnlyWhileSomebodyListens) {
    hold(leftControl);
    EXPECT_FALSE(isSelected());
    release(leftControl);
    listen();
    hold(leftControl);
    ASSERT_TRUE(isSelected());
    listening.reset();
    EXPECT_FALSE(isSelected());
    tap(letterA);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(X11TypedKeysTest, AModifierThatIsHeldAtTheStartCounts) {
    hold(leftControl);
    Subscription other = keys->onKeyStroke([](const KeyStroke&) {});
    EXPECT_TRUE(isSelected());
    other.reset();
    EXPECT_FALSE(isSelected());
}

TEST_F(X11TypedKeysTest, EveryListenerIsTold) {
    listen();
    int others = 0;
    const Subscription other = keys->onKeyStroke([&others](const KeyStroke&) { ++others; });
    hold(leftControl);
    tap(letterA);
    EXPECT_EQ(others, 1);
    EXPECT_THAT(told, ElementsAre("⌃a"));
}

TEST_F(X11TypedKeysTest, AListenerMayStopWhenItIsTold) {
    int times = 0;
    Subscription once;
    listen();
    once = keys->onKeyStroke([&](const KeyStroke&) {
        ++times;
        listening.reset();
        once.reset();
    });
    hold(leftControl);
    tap(letterA);
    tap(letterA);
    EXPECT_EQ(times, 1);
    EXPECT_FALSE(isSelected());
}

TEST_F(X11TypedKeysTest, ModifiersAreNoStrokes) {
    listen();
    hold(leftControl);
    hold(leftShift);
    hold(leftAlt);
    hold(leftSuper);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(X11TypedKeysTest, AKeyThatIsHeldCountsOnce) {
    listen();
    client->setRepeat(20, 10);
    hold(leftControl);
    const xcb_window_t window = client->makeWindow({});
    client->setFocus(window);
    client->watchKeys(window);
    client->keyDown(letterS);
    ASSERT_TRUE(waitFor([this] { return client->keysSeen() >= 5; })) << "the server repeats the key";
    settle();
    EXPECT_THAT(told, ElementsAre("⌃s"));
    client->keyUp(letterS);
    tap(letterS);
    EXPECT_THAT(told, ElementsAre("⌃s", "⌃s"));
    client->destroy(window);
}

TEST_F(X11TypedKeysTest, APressOfAKeyThatIsDownAlreadyIsARepeat) {
    listen();
    hold(leftControl);
    client->keyDown(letterS);
    client->keyDown(letterS);
    client->keyDown(letterS);
    settle();
    EXPECT_THAT(told, ElementsAre("⌃s"));
}

TEST_F(X11TypedKeysTest, WhatIsTypedIntoThisProgramIsNotTold) {
    listen();
    ownFocus = true;
    hold(leftControl);
    tap(letterA);
    EXPECT_THAT(told, IsEmpty());
    ownFocus = false;
    tap(letterA);
    EXPECT_THAT(told, ElementsAre("⌃a"));
}

TEST_F(X11TypedKeysTest, KeysAreToldWhileAnotherClientHasGrabbedTheKeyboard) {
    listen();
    ASSERT_TRUE(client->grabKeyboard());
    hold(leftControl);
    tap(letterA);
    EXPECT_THAT(told, ElementsAre("⌃a"));
    client->ungrab();
}

TEST_F(X11TypedKeysTest, NumLockDecidesWhatTheKeypadGives) {
    listen();
    const std::uint8_t one = keyCode(KEY_KP1);
    hold(leftControl);
    tap(one);
    release(leftControl);
    tap(numLock);
    hold(leftControl);
    tap(one);
    release(leftControl);
    tap(numLock);
    EXPECT_THAT(told, ElementsAre("⌃", "⌃1"));
}

TEST_F(X11TypedKeysTest, FollowsAChangeOfWhatTheKeysGive) {
    listen();
    client->changeSymbol(letterS, XKB_KEY_x);
    hold(leftControl);
    EXPECT_TRUE(waitFor([this] {
        told.clear();
        tap(letterS);
        return told == std::vector<std::string>{"⌃x"};
    }));
    release(leftControl);
    client->changeSymbol(letterS, XKB_KEY_s);
}

struct X11StickyTypedKeysTest : X11TypedKeysTest {
    void SetUp() override {
        X11TypedKeysTest::SetUp();
        listen();
        client->setStickyKeys(true);
    }
    void TearDown() override {
        client->setStickyKeys(false);
        X11TypedKeysTest::TearDown();
    }
};

TEST_F(X11StickyTypedKeysTest, AModifierThatWaitsForTheNextKeyCountsForThatOne) {
    client->tap(leftControl);
    settle();
    settle();
    EXPECT_TRUE(isSelected());
    tap(letterA);
    settle();
    EXPECT_THAT(told, ElementsAre("⌃a"));
    EXPECT_FALSE(isSelected());
    tap(letterS);
    EXPECT_THAT(told, ElementsAre("⌃a"));
}

struct X11TwoLayoutsTest : X11TypedKeysTest {
    void SetUp() override {
        X11TypedKeysTest::SetUp();
        // Without and with Shift in the first layout, then in the second.
        client->changeSymbols(letterA, {XKB_KEY_a, XKB_KEY_A, XKB_KEY_adiaeresis, XKB_KEY_Adiaeresis});
        client->changeSymbols(letterS, {XKB_KEY_s, XKB_KEY_S, XKB_KEY_Cyrillic_yeru, XKB_KEY_Cyrillic_YERU});
        listen();
    }
    void TearDown() override {
        client->lockGroup(0);
        X11TypedKeysTest::TearDown();
    }
};

TEST_F(X11TwoLayoutsTest, TheLayoutInEffectDecides) {
    client->lockGroup(1);
    settle();
    hold(leftControl);
    tap(letterA);
    tap(letterS);
    release(leftControl);
    EXPECT_THAT(told, ElementsAre("⌃ä", "⌃s")) << "a Latin character of its own; one of the Latin layout";
    client->lockGroup(0);
    settle();
    hold(leftControl);
    tap(letterA);
    EXPECT_EQ(told.back(), "⌃a");
}

} // namespace
} // namespace quillon
