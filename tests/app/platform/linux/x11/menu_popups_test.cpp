#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/fake/fake_front_application.h>
#include <quillon/app/platform/linux/x11/menu_popups.h>

#include <gmock/gmock.h>

#include <QTimer>

#include <chrono>
#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down what it is told; the pointer's whereabouts between presses apart.
struct Diary final : MenuPopupsObserver {
    void menusOpened(const RunningApp& app) override { lines.push_back("opened " + app.bundleID); }
    void pointerPressed(Point at) override { lines.push_back("pressed " + text(at)); }
    void pointerSeen(Point at, bool isHeld) override { seen.push_back(text(at) + (isHeld ? " held" : "")); }
    void leftButtonReleased(Point at) override { lines.push_back("released " + text(at)); }
    void menusClosed() override { lines.emplace_back("closed"); }

    static std::string text(Point at) {
        return std::to_string(static_cast<int>(at.x)) + "," + std::to_string(static_cast<int>(at.y));
    }
    std::vector<std::string> lines;
    std::vector<std::string> seen;
};

struct MenuPopupsTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        application = std::make_unique<TestClient>(x11Display());
        window = application->makeWindow({.x = 0, .y = 300});
        front.setCurrent(appWith(window));
        popups = std::make_unique<MenuPopups>(x11, std::make_shared<RawInput>(x11), front, diary);
        client->movePointer(0, 0);
        settle();
    }
    void TearDown() override { client->setPointerMapping({1, 2, 3}); }

    static RunningApp appWith(xcb_window_t activeWindow) {
        return {1, "editor", "Editor", {{activeWindow, ""}}};
    }
    xcb_window_t makeMenu(TestClient& owner, bool mapped = false, std::int16_t at = 100) {
        return owner.makeWindow({.overrideRedirect = true, .mapped = mapped, .x = at, .y = at, .size = 50});
    }
    void press(std::uint8_t button = 1) {
        client->buttonDown(button);
        settle();
    }
    void letGo(std::uint8_t button = 1) {
        client->buttonUp(button);
        settle();
    }
    void show(xcb_window_t menu) {
        application->map(menu);
        settle();
    }
    void hide(xcb_window_t menu) {
        application->unmap(menu);
        settle();
    }

    FakeFrontApplication front;
    Diary diary;
    std::unique_ptr<TestClient> application;
    std::unique_ptr<MenuPopups> popups;
    xcb_window_t window = XCB_NONE;
};

TEST_F(MenuPopupsTest, AMenuThatAPressOpensIsTold) {
    const xcb_window_t menu = makeMenu(*application);
    press();
    EXPECT_THAT(diary.lines, IsEmpty());
    show(menu);
    EXPECT_THAT(diary.lines, ElementsAre("opened editor"));
    ASSERT_EQ(popups->popups().size(), 1U);
    EXPECT_EQ(popups->popups().front().frame, (Rect{100, 100, 50, 50}));
    letGo();
    hide(menu);
    EXPECT_THAT(diary.lines, ElementsAre("opened editor", "released 0,0", "closed"));
}

TEST_F(MenuPopupsTest, AnOrdinaryClickTellsNothing) {
    press();
    letGo();
    EXPECT_THAT(diary.lines, IsEmpty());
}

TEST_F(MenuPopupsTest, WithoutAPressNobodyLooks) {
    const unsigned before = requestsSoFar();
    const xcb_window_t menu = makeMenu(*application);
    show(menu);
    hide(menu);
    EXPECT_THAT(diary.lines, IsEmpty());
    EXPECT_LE(requestsSoFar() - before, 4U) << "those of the test itself";
}

TEST_F(MenuPopupsTest, AMenuOpenedByAKeyIsFoundByThePress) {
    const xcb_window_t menu = makeMenu(*application, true);
    client->movePointer(120, 120);
    press();
    EXPECT_THAT(diary.lines, ElementsAre("opened editor", "pressed 120,120"));
    letGo();
    hide(menu);
}

TEST_F(MenuPopupsTest, PressesAndReleasesOfAClickInAnOpenMenu) {
    const xcb_window_t menu = makeMenu(*application);
    press();
    show(menu);
    letGo();
    diary.lines.clear();
    client->movePointer(130, 110);
    press();
    letGo();
    hide(menu);
    EXPECT_THAT(diary.lines, ElementsAre("pressed 130,110", "released 130,110", "closed"));
}

TEST_F(MenuPopupsTest, AClickThatIsToldAtOnceKeepsItsOrder) {
    const xcb_window_t menu = makeMenu(*application);
    press();
    show(menu);
    letGo();
    diary.lines.clear();
    client->movePointer(130, 110);
    client->click(1);
    application->unmap(menu);
    settle();
    EXPECT_THAT(diary.lines, ElementsAre("pressed 130,110", "released 130,110", "closed"));
}

TEST_F(MenuPopupsTest, SubmenusAreOpenToo) {
    const xcb_window_t menu = makeMenu(*application);
    const xcb_window_t submenu = makeMenu(*application, false, 120);
    press();
    show(menu);
    show(submenu);
    ASSERT_EQ(popups->popups().size(), 2U);
    EXPECT_EQ(popups->popups().back().window, submenu);
    hide(submenu);
    EXPECT_EQ(popups->popups().size(), 1U);
    hide(menu);
    letGo();
    EXPECT_THAT(diary.lines, ElementsAre("opened editor", "closed"));
}

TEST_F(MenuPopupsTest, TheRightButtonOpensMenusAndItsReleaseChoosesNothing) {
    const xcb_window_t menu = makeMenu(*application);
    press(3);
    show(menu);
    letGo(3);
    EXPECT_THAT(diary.lines, ElementsAre("opened editor"));
    hide(menu);
}

TEST_F(MenuPopupsTest, TheWheelOpensNothingAndMakesWhatIsOpenAnew) {
    const xcb_window_t menu = makeMenu(*application);
    client->click(5);
    settle();
    show(menu);
    EXPECT_THAT(diary.lines, IsEmpty());
    hide(menu);
    press();
    show(menu);
    const auto opening = popups->popups().front().opening;
    client->click(5);
    settle();
    EXPECT_NE(popups->popups().front().opening, opening);
    letGo();
}

TEST_F(MenuPopupsTest, ButtonsSwappedForTheLeftHand) {
    ASSERT_TRUE(client->setPointerMapping({3, 2, 1}));
    const xcb_window_t menu = makeMenu(*application);
    press(3);
    show(menu);
    letGo(3);
    EXPECT_THAT(diary.lines, ElementsAre("opened editor", "released 0,0"));
    press(1);
    letGo(1);
    EXPECT_THAT(diary.lines, ElementsAre("opened editor", "released 0,0", "pressed 0,0"));
    hide(menu);
}

TEST_F(MenuPopupsTest, TooltipsAndListsAreNoMenus) {
    for (const char* type : {"TOOLTIP", "COMBO", "NOTIFICATION", "DND"}) {
        const xcb_window_t bare = makeMenu(*application);
        application->setNumbers(
            bare, "_NET_WM_WINDOW_TYPE", "ATOM",
            {application->atom(std::string("_NET_WM_WINDOW_TYPE_") + type)});
        press();
        show(bare);
        letGo();
        EXPECT_THAT(diary.lines, IsEmpty()) << type;
        hide(bare);
    }
}

TEST_F(MenuPopupsTest, AnApplicationsOwnWindowIsNoMenuAlthoughNoWindowManagerHandlesIt) {
    front.setCurrent(appWith(application->makeWindow({.overrideRedirect = true})));
    press();
    letGo();
    EXPECT_THAT(diary.lines, IsEmpty());
}

TEST_F(MenuPopupsTest, WindowsOfOtherApplicationsAreNoMenus) {
    front.setCurrent(RunningApp{1, "editor", "Editor", {{application->makeWindow({}), ""}}});
    TestClient other(x11Display());
    const xcb_window_t menu = makeMenu(other);
    press();
    other.map(menu);
    settle();
    EXPECT_THAT(diary.lines, IsEmpty());
    letGo();
}

TEST_F(MenuPopupsTest, AClickThatBringsItsWindowToTheFrontOpensItsMenu) {
    TestClient other(x11Display());
    const xcb_window_t menu = makeMenu(other);
    press();
    other.map(menu);
    settle();
    EXPECT_THAT(diary.lines, IsEmpty());
    front.activate({2, "viewer", "Viewer", {{other.makeWindow({}), ""}}});
    settle();
    EXPECT_THAT(diary.lines, ElementsAre("opened viewer"));
    letGo();
}

TEST_F(MenuPopupsTest, AnApplicationThatDiesClosesItsMenus) {
    const xcb_window_t menu = makeMenu(*application);
    press();
    show(menu);
    application.reset();
    settle();
    letGo();
    EXPECT_THAT(diary.lines, ElementsAre("opened editor", "closed"));
}

TEST_F(MenuPopupsTest, ThePointerIsFollowedWhileAMenuIsOpen) {
    const xcb_window_t menu = makeMenu(*application);
    press();
    EXPECT_THAT(diary.seen, IsEmpty());
    show(menu);
    client->movePointer(111, 112);
    const auto isSeen = [&](const char* text) {
        return waitFor([&] { return std::ranges::find(diary.seen, text) != diary.seen.end(); });
    };
    EXPECT_TRUE(isSeen("111,112 held"));
    letGo();
    EXPECT_TRUE(isSeen("111,112"));
    hide(menu);
    settle();
    const std::size_t until = diary.seen.size();
    int glances = 0;
    QTimer asOften;
    asOften.callOnTimeout([&glances] { ++glances; });
    asOften.start(std::chrono::milliseconds(50));
    EXPECT_TRUE(waitFor([&] { return glances == 3; }));
    EXPECT_EQ(diary.seen.size(), until);
}

TEST_F(MenuPopupsTest, AMenuThatMovesCountsAsAnother) {
    const xcb_window_t menu = makeMenu(*application);
    press();
    show(menu);
    const auto opening = popups->popups().front().opening;
    application->moveWindow(menu, 10, 20);
    settle();
    EXPECT_EQ(popups->popups().front().frame, (Rect{10, 20, 50, 50}));
    EXPECT_NE(popups->popups().front().opening, opening);
    letGo();
}

TEST_F(MenuPopupsTest, OfAFloodOfWindowsOnlyTheLastOnesAreLookedAt) {
    std::vector<xcb_window_t> menus(300);
    for (xcb_window_t& menu : menus)
        menu = makeMenu(*application);
    press();
    const unsigned before = requestsSoFar();
    for (const xcb_window_t menu : menus)
        application->map(menu);
    settle();
    EXPECT_LT(requestsSoFar() - before, 100U);
    ASSERT_FALSE(popups->popups().empty());
    EXPECT_EQ(popups->popups().back().window, menus.back());
    letGo();
}

TEST_F(MenuPopupsTest, WhoIsInFrontIsAskedOnceForAllWindows) {
    struct Counting final : FrontApplication {
        std::optional<RunningApp> current() const override {
            ++asked;
            return app;
        }
        Subscription onActivated(std::function<void(const RunningApp&)>) override { return {}; }
        std::optional<RunningApp> app;
        mutable int asked = 0;
    };
    Counting counting;
    counting.app = appWith(window);
    TestClient other(x11Display());
    for (int i = 0; i < 4; ++i)
        makeMenu(other, true);
    makeMenu(*application, true);
    popups.reset();
    popups = std::make_unique<MenuPopups>(x11, std::make_shared<RawInput>(x11), counting, diary);
    settle();
    press();
    EXPECT_EQ(counting.asked, 1);
    EXPECT_EQ(popups->popups().size(), 1U);
    letGo();
    popups.reset();
}

struct LateServersMenuPopupsTest : MenuPopupsTest {
    LateServersMenuPopupsTest() { patience = X11Connection::mainThreadPatience; }
};

TEST_F(LateServersMenuPopupsTest, AMenuThatOpensWhileTheServerAnswersNobodyIsToldLater) {
    const xcb_window_t menu = makeMenu(*application);
    press();
    application->grabServer();
    application->map(menu);
    ASSERT_TRUE(waitFor([&] { return x11->isLate(); }));
    EXPECT_THAT(diary.lines, IsEmpty());
    application->ungrabServer();
    EXPECT_TRUE(waitFor([&] { return popups->popups().size() == 1; }));
    EXPECT_THAT(diary.lines, Contains("opened editor"));
    letGo();
    hide(menu);
}

TEST_F(LateServersMenuPopupsTest, AnOpenMenuIsFoundOnceTheServerAnswersAfterThePress) {
    const xcb_window_t menu = makeMenu(*application, true);
    application->grabServer();
    application->buttonDown(1);
    ASSERT_TRUE(waitFor([&] { return x11->isLate(); }));
    application->ungrabServer();
    EXPECT_TRUE(waitFor([&] { return popups->popups().size() == 1; }));
    letGo();
    hide(menu);
}

TEST_F(MenuPopupsTest, StoppedItTellsNothing) {
    const xcb_window_t menu = makeMenu(*application);
    press();
    show(menu);
    popups->stop();
    letGo();
    hide(menu);
    EXPECT_THAT(diary.lines, ElementsAre("opened editor"));
}

TEST_F(MenuPopupsTest, AServerThatGoesAwayClosesAllMenus) {
    XServer mortal;
    auto connection = X11Connection::open(mortal.display(), patience);
    TestClient mouse(mortal.display());
    TestClient editor(mortal.display());
    front.setCurrent(appWith(editor.makeWindow({})));
    MenuPopups watched(connection, std::make_shared<RawInput>(connection), front, diary);
    const xcb_window_t menu = makeMenu(editor);
    mouse.sync();
    connection->reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(connection->xcb()));
    mouse.buttonDown(1);
    editor.map(menu);
    ASSERT_TRUE(waitFor([&] { return !diary.lines.empty(); }));
    mortal.kill();
    EXPECT_TRUE(waitFor([&] { return diary.lines.back() == "closed"; }));
}

} // namespace
} // namespace quillon
