#include <quillon/tests/app/platform/linux/x11/support/test_keys.h>
#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/x11_keyboard_grab.h>

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <memory>

namespace quillon {
namespace {

using namespace testkeys;

struct X11KeyboardGrabTest : X11Fixture {
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void SetUp() override {
        X11Fixture::SetUp();
        toolkit.reset(xcb_connect(x11Display().c_str(), nullptr));
        window = client->makeWindow({});
        other = client->makeWindow({});
        client->watchKeys(other);
        client->setFocus(other);
        grab = std::make_unique<X11KeyboardGrab>(toolkit.get());
    }
    void TearDown() override { client->keyUp(letterA); }

    /// Within the time in which it is asked for twice.
    bool isTakenSoon() {
        QElapsedTimer time;
        time.start();
        waitFor([&] { return taken || time.hasExpired(250); });
        return taken;
    }
    /// How many presses come to the window that has the focus.
    int pressesLeft() {
        const int before = client->keysSeen();
        client->tap(letterA);
        client->sync();
        return client->keysSeen() - before;
    }

    std::unique_ptr<xcb_connection_t, Disconnect> toolkit;
    std::unique_ptr<X11KeyboardGrab> grab;
    xcb_window_t window = XCB_NONE;
    xcb_window_t other = XCB_NONE;
    bool taken = false;
};

TEST_F(X11KeyboardGrabTest, EveryPressComesToTheWindowUntilTheHandleEnds) {
    EXPECT_EQ(pressesLeft(), 1);
    Subscription holding = grab->take(window, [this] { taken = true; });
    EXPECT_FALSE(taken) << "nobody waits for the server";
    ASSERT_TRUE(waitFor([this] { return taken; }));
    EXPECT_EQ(pressesLeft(), 0);
    EXPECT_FALSE(client->grabKeyboard()) << "it is taken";
    holding.reset();
    ASSERT_TRUE(waitFor([this] { return client->grabKeyboard(); }));
    client->ungrab();
}

TEST_F(X11KeyboardGrabTest, WhatAnotherHasIsAskedForAgain) {
    ASSERT_TRUE(client->grabKeyboard());
    Subscription holding = grab->take(window, [this] { taken = true; });
    EXPECT_FALSE(isTakenSoon());
    client->ungrab();
    client->sync();
    EXPECT_TRUE(waitFor([this] { return taken; }));
}

TEST_F(X11KeyboardGrabTest, AnEndBeforeTheAnswerLeavesNothingBehind) {
    grab->take(window, [this] { taken = true; }).reset();
    ASSERT_TRUE(waitFor([this] { return client->grabKeyboard(); }));
    client->ungrab();
    EXPECT_FALSE(taken);
}

TEST_F(X11KeyboardGrabTest, AWindowThatIsGoneIsNotGrabbedFor) {
    client->destroy(window);
    Subscription holding = grab->take(window, [this] { taken = true; });
    EXPECT_FALSE(isTakenSoon());
    EXPECT_TRUE(client->grabKeyboard());
    client->ungrab();
}

} // namespace
} // namespace quillon
