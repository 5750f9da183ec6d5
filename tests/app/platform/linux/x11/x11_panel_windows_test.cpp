#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/x11_panel_windows.h>
#include <quillon/kit/base/file_descriptor.h>

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace quillon {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

struct X11PanelWindowsTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        panels = std::make_unique<X11PanelWindows>(x11, std::make_shared<RawInput>(x11));
    }
    void TearDown() override {
        client->movePointer(0, 0);
        client->ungrab();
    }
    xcb_window_t makePanel(bool mapped = true) {
        return client->makeWindow(
            {.overrideRedirect = true, .mapped = mapped, .x = 200, .y = 200, .size = 100});
    }
    bool hasFocus(xcb_window_t window) {
        return waitFor([&] {
            settle();
            return client->focus() == window;
        });
    }

    std::unique_ptr<X11PanelWindows> panels;
};

TEST_F(X11PanelWindowsTest, APreparedPanelIsMarkedAsANotice) {
    const xcb_window_t panel = makePanel(false);
    panels->prepare(panel);
    settle();
    EXPECT_THAT(
        client->numbers(panel, "_NET_WM_WINDOW_TYPE"),
        ElementsAre(client->atom("_NET_WM_WINDOW_TYPE_NOTIFICATION")));
    EXPECT_THAT(
        client->numbers(panel, "_NET_WM_STATE"),
        UnorderedElementsAre(
            client->atom("_NET_WM_STATE_ABOVE"), client->atom("_NET_WM_STATE_STICKY"),
            client->atom("_NET_WM_STATE_SKIP_TASKBAR"), client->atom("_NET_WM_STATE_SKIP_PAGER")));
    EXPECT_THAT(client->numbers(panel, "_NET_WM_DESKTOP"), ElementsAre(0xFFFFFFFF));
    EXPECT_THAT(client->numbers(panel, "_NET_WM_USER_TIME"), ElementsAre(0));
}

/// A panel that has taken the keyboard of an editor.
struct X11TakenKeyboardTest : X11PanelWindowsTest {
    void SetUp() override {
        X11PanelWindowsTest::SetUp();
        editor = client->makeWindow({});
        panel = makePanel();
        client->setFocus(editor);
        panels->takeKeyboard(panel);
        ASSERT_TRUE(hasFocus(panel));
    }

    xcb_window_t editor = XCB_NONE;
    xcb_window_t panel = XCB_NONE;
};

TEST_F(X11TakenKeyboardTest, IsGivenBack) {
    panels->returnKeyboard(panel);
    EXPECT_TRUE(hasFocus(editor));
}

TEST_F(X11PanelWindowsTest, APanelThatIsNotOnTheScreenYetGetsTheKeyboardWhenItIs) {
    const xcb_window_t editor = client->makeWindow({});
    const xcb_window_t panel = makePanel(false);
    client->setFocus(editor);
    panels->takeKeyboard(panel);
    settle();
    EXPECT_EQ(client->focus(), editor);
    client->map(panel);
    EXPECT_TRUE(hasFocus(panel));
    panels->returnKeyboard(panel);
    EXPECT_TRUE(hasFocus(editor));
}

TEST_F(X11TakenKeyboardTest, APanelThatIsShownAgainDoesNotTakeTheKeyboardByItself) {
    panels->returnKeyboard(panel);
    client->unmap(panel);
    client->map(panel);
    settle();
    EXPECT_EQ(client->focus(), editor);
}

TEST_F(X11TakenKeyboardTest, NorDoesOneThatWasHiddenWithoutGivingItBack) {
    settle();
    client->unmap(panel);
    client->setFocus(editor);
    client->map(panel);
    settle();
    EXPECT_EQ(client->focus(), editor);
}

TEST_F(X11TakenKeyboardTest, AKeyboardThatAnotherWindowHasTakenStaysThere) {
    const xcb_window_t other = client->makeWindow({});
    client->setFocus(other);
    settle();
    panels->returnKeyboard(panel);
    settle();
    EXPECT_EQ(client->focus(), other);
}

TEST_F(X11TakenKeyboardTest, TheKeyboardOfAPanelThatIsOffTheScreenAlreadyGoesBackToo) {
    client->unmap(panel);
    panels->returnKeyboard(panel);
    EXPECT_TRUE(hasFocus(editor));
}

TEST_F(X11TakenKeyboardTest, GivingTheKeyboardBackAsksNobody) {
    settle();
    client->grabServer();
    const auto begin = std::chrono::steady_clock::now();
    panels->returnKeyboard(panel);
    panels->takeAway(panel);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5)) << "the patience is ten";
    client->ungrabServer();
    EXPECT_TRUE(hasFocus(editor));
    EXPECT_FALSE(client->isMapped(panel));
}

TEST_F(X11TakenKeyboardTest, AKeyboardWhoseOwnerIsGoneFollowsThePointer) {
    client->destroy(editor);
    panels->returnKeyboard(panel);
    panels->takeAway(panel);
    EXPECT_TRUE(hasFocus(XCB_INPUT_FOCUS_POINTER_ROOT));
}

TEST_F(X11TakenKeyboardTest, TakingTwiceRemembersWhoHadItFirst) {
    panels->takeKeyboard(panel);
    panels->returnKeyboard(panel);
    EXPECT_TRUE(hasFocus(editor));
}

TEST_F(X11PanelWindowsTest, APanelThatNeverTookTheKeyboardHasNoneToReturn) {
    const xcb_window_t editor = client->makeWindow({});
    client->setFocus(editor);
    panels->returnKeyboard(makePanel());
    settle();
    EXPECT_EQ(client->focus(), editor);
}

TEST_F(X11PanelWindowsTest, APanelThatIsTakenAwayDoesNotMoveThePointerIntoWhatLiesBelow) {
    const xcb_window_t below = client->makeWindow({.x = 200, .y = 200, .size = 100});
    const xcb_window_t panel = makePanel();
    client->movePointer(250, 250);
    client->watchPointer(below);
    panels->takeAway(panel);
    settle();
    EXPECT_THAT(client->pointerComings(), Each(XCB_NOTIFY_MODE_UNGRAB));
    EXPECT_FALSE(client->isMapped(panel));
    EXPECT_TRUE(client->grabPointer()) << "it is free again";
}

TEST_F(X11PanelWindowsTest, APanelIsTakenAwayWhileAnotherClientHasThePointer) {
    const xcb_window_t panel = makePanel();
    ASSERT_TRUE(client->grabPointer());
    panels->takeAway(panel);
    settle();
    EXPECT_FALSE(client->isMapped(panel));
}

TEST_F(X11PanelWindowsTest, ThePointerReachesWhatLiesUnderTheUntouchablePartsOfAPanel) {
    const xcb_window_t below = client->makeWindow({.x = 200, .y = 200, .size = 100});
    const xcb_window_t panel = makePanel();
    panels->setShape(panel, {.shown = {}, .touchable = {{20, 20, 60, 60}}});
    settle();
    client->movePointer(205, 205);
    EXPECT_EQ(client->windowUnderPointer(), below);
    client->movePointer(250, 250);
    EXPECT_EQ(client->windowUnderPointer(), panel);
    panels->setShape(panel, {.shown = {}, .touchable = {}});
    settle();
    EXPECT_EQ(client->windowUnderPointer(), below);
}

TEST_F(X11PanelWindowsTest, APanelIsCutToItsShapeAndMadeWholeAgain) {
    const xcb_window_t panel = makePanel();
    panels->setShape(panel, {.shown = {{{10, 0, 80, 100}}}, .touchable = {{0, 0, 100, 100}}});
    settle();
    client->movePointer(205, 250);
    EXPECT_NE(client->windowUnderPointer(), panel);
    panels->setShape(panel, {.shown = {}, .touchable = {{0, 0, 100, 100}}});
    settle();
    EXPECT_EQ(client->windowUnderPointer(), panel);
}

TEST_F(X11PanelWindowsTest, AWindowThatTheServerHasYetToMakeIsMarkedAndCutToo) {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> maker(
        xcb_connect(x11Display().c_str(), nullptr), &xcb_disconnect);
    X11PanelWindows ofMaker(x11, std::make_shared<RawInput>(x11), maker.get());
    const xcb_window_t panel = xcb_generate_id(maker.get());
    const std::uint32_t overrideRedirect = 1;
    xcb_create_window(
        maker.get(), XCB_COPY_FROM_PARENT, panel, client->root(), 200, 200, 100, 100, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &overrideRedirect);
    ofMaker.prepare(panel);
    ofMaker.setShape(panel, {.shown = {{{10, 0, 80, 100}}}, .touchable = {{0, 0, 100, 100}}});
    settle();
    xcb_map_window(maker.get(), panel);
    xcb_flush(maker.get());
    EXPECT_TRUE(waitFor([&] { return client->isMapped(panel); }));
    EXPECT_THAT(client->numbers(panel, "_NET_WM_USER_TIME"), ElementsAre(0));
    client->movePointer(250, 250);
    EXPECT_EQ(client->windowUnderPointer(), panel);
    client->movePointer(205, 250);
    EXPECT_NE(client->windowUnderPointer(), panel);
}

TEST_F(X11PanelWindowsTest, ACompositorIsNoticedAsItComesAndGoes) {
    int changes = 0;
    const Subscription listener = panels->onCompositedChanged([&] { ++changes; });
    EXPECT_FALSE(panels->isComposited());
    const xcb_window_t owner = makePanel(false);
    client->ownSelection("_NET_WM_CM_S0", owner);
    EXPECT_TRUE(waitFor([&] { return changes == 1; }));
    EXPECT_TRUE(panels->isComposited());
    EXPECT_TRUE(X11PanelWindows(x11, std::make_shared<RawInput>(x11)).isComposited());
    client->destroy(owner);
    EXPECT_TRUE(waitFor([&] { return changes == 2; }));
    EXPECT_FALSE(panels->isComposited());
}

/// A client of another process: what it shows is not ours.
struct OtherProcess {
    explicit OtherProcess(const std::string& display) {
        std::array<int, 2> ends{-1, -1};
        if (::pipe(ends.data()) != 0)
            return;
        const FileDescriptor readEnd(ends[0]);
        const FileDescriptor writeEnd(ends[1]);
        pid = ::fork();
        if (pid == 0) {
            TestClient other(display);
            other.makeWindow({.x = 400, .y = 300, .size = 100});
            const char done = '1';
            if (::write(writeEnd.get(), &done, 1) != 1)
                ::_exit(1);
            ::pause();
            ::_exit(0);
        }
        char done = 0;
        isReady = ::read(readEnd.get(), &done, 1) == 1;
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    ~OtherProcess() {
        ::kill(pid, SIGKILL);
        ::waitpid(pid, nullptr, 0);
    }
    pid_t pid = -1;
    bool isReady = false;
};

struct X11PressElsewhereTest : X11PanelWindowsTest {
    void SetUp() override {
        X11PanelWindowsTest::SetUp();
        listener = panels->onPressElsewhere([this] { ++presses; });
        settle();
    }
    int presses = 0;
    Subscription listener;
};

TEST_F(X11PressElsewhereTest, APressOnTheDesktopIsTold) {
    client->movePointer(5, 5);
    client->click(1);
    EXPECT_TRUE(waitFor([&] { return presses == 1; }));
    client->click(3);
    EXPECT_TRUE(waitFor([&] { return presses == 2; }));
}

TEST_F(X11PressElsewhereTest, APressOnAnotherProcesssWindowIsTold) {
    const OtherProcess other(x11Display());
    ASSERT_TRUE(other.isReady);
    client->movePointer(450, 350);
    client->click(1);
    EXPECT_TRUE(waitFor([&] { return presses == 1; }));
}

TEST_F(X11PressElsewhereTest, APressOnAPanelIsNot) {
    const xcb_window_t panel = makePanel();
    panels->prepare(panel);
    client->movePointer(250, 250);
    client->click(1);
    settle();
    EXPECT_EQ(presses, 0);
}

TEST_F(X11PressElsewhereTest, NorIsOneOnAnyOtherWindowOfThisProcess) {
    makePanel();
    client->movePointer(250, 250);
    client->click(1);
    settle();
    EXPECT_EQ(presses, 0);
}

TEST_F(X11PressElsewhereTest, TheWheelIsNoPress) {
    client->movePointer(5, 5);
    for (std::uint8_t button = 4; button <= 7; ++button)
        client->click(button);
    settle();
    EXPECT_EQ(presses, 0);
}

TEST_F(X11PressElsewhereTest, APressUnderAnotherClientsGrabIsTold) {
    ASSERT_TRUE(client->grabPointer());
    client->movePointer(5, 5);
    client->click(1);
    EXPECT_TRUE(waitFor([&] { return presses == 1; }));
}

TEST_F(X11PressElsewhereTest, NothingIsToldAfterTheHandleEnded) {
    int events = 0;
    const Subscription all = x11->onEvent([&](const xcb_generic_event_t&) { ++events; });
    listener.reset();
    settle();
    events = 0;
    client->movePointer(5, 5);
    client->click(1);
    settle();
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(events, 0);
}

} // namespace
} // namespace quillon
