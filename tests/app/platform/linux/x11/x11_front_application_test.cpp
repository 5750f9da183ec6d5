#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/fake/fake_clock.h>
#include <quillon/app/platform/linux/x11/x11_front_application.h>

#include <gmock/gmock.h>

#include <unistd.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

DesktopEntry entry(std::string id, std::string name, std::string windowClass) {
    DesktopEntry result;
    result.id = std::move(id);
    result.name = std::move(name);
    result.startupWMClass = std::move(windowClass);
    return result;
}

DesktopEntries office() {
    return DesktopEntries(
        {entry("libreoffice-writer", "LibreOffice Writer", "libreoffice-writer"),
         entry("libreoffice-calc", "LibreOffice Calc", "libreoffice-calc"),
         entry("org.gnome.gedit", "Text Editor", "")});
}

AppWindow listed(xcb_window_t id, std::string title) {
    return {id, std::move(title)};
}

struct X11FrontApplicationTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        identifier = std::make_unique<AppIdentifier>(background, clock, office, "/nonexistent");
    }
    void TearDown() override {
        client->setActiveWindow(XCB_NONE);
        if (manager != XCB_NONE)
            client->destroy(manager);
    }

    void start() {
        background.runAll();
        front = std::make_unique<X11FrontApplication>(
            x11, *identifier,
            [this](const std::string& bundleID, const IconPixels&) { iconsOf.push_back(bundleID); });
        listener = front->onActivated([this](const RunningApp& app) { told.push_back(app); });
    }
    void startWithManager() {
        manager = client->becomeWindowManager();
        start();
    }
    xcb_window_t writer(std::string_view title) {
        return client->makeWindow(
            {.instance = "libreoffice", .className = "libreoffice-writer", .title = title});
    }
    xcb_window_t calc(std::string_view title) {
        return client->makeWindow(
            {.instance = "libreoffice", .className = "libreoffice-calc", .title = title});
    }
    void activate(xcb_window_t window) {
        const std::size_t before = told.size();
        client->setActiveWindow(window);
        ASSERT_TRUE(waitFor([&] { return told.size() > before; }));
    }

    FakeBackground background;
    FakeClock clock;
    std::unique_ptr<AppIdentifier> identifier;
    std::unique_ptr<X11FrontApplication> front;
    xcb_window_t manager = XCB_NONE;
    std::vector<RunningApp> told;
    std::vector<std::string> iconsOf;
    Subscription listener;
};

TEST_F(X11FrontApplicationTest, TellsTheApplicationOfTheWindowThatBecomesActive) {
    startWithManager();
    EXPECT_EQ(front->current(), std::nullopt);
    const xcb_window_t window = writer("Letter – LibreOffice Writer");
    activate(window);
    const RunningApp expected{
        ::getpid(),
        "libreoffice-writer",
        "LibreOffice Writer",
        {listed(window, "Letter – LibreOffice Writer")}};
    EXPECT_THAT(told, ElementsAre(expected));
    EXPECT_EQ(front->current(), expected);
}

TEST_F(X11FrontApplicationTest, KnowsWhatIsActiveWhenItStarts) {
    manager = client->becomeWindowManager();
    const xcb_window_t window = writer("Letter");
    client->setActiveWindow(window);
    start();
    ASSERT_TRUE(front->current());
    EXPECT_EQ(front->current()->bundleID, "libreoffice-writer");
}

TEST_F(X11FrontApplicationTest, OneProcessMayBeSeveralApplications) {
    startWithManager();
    const xcb_window_t letter = writer("Letter");
    const xcb_window_t sums = calc("Sums");
    activate(letter);
    activate(sums);
    EXPECT_EQ(told.at(0).bundleID, "libreoffice-writer");
    EXPECT_EQ(told.at(1).bundleID, "libreoffice-calc");
    EXPECT_EQ(told.at(0).pid, told.at(1).pid);
    EXPECT_THAT(told.at(1).windows, ElementsAre(listed(sums, "Sums")));
}

TEST_F(X11FrontApplicationTest, AnotherWindowOfTheSameApplicationIsToldToo) {
    startWithManager();
    const xcb_window_t first = writer("First");
    const xcb_window_t second = writer("Second");
    const xcb_window_t third = writer("Third");
    activate(first);
    activate(second);
    activate(third);
    activate(first);
    EXPECT_THAT(
        told.back().windows,
        ElementsAre(listed(first, "First"), listed(third, "Third"), listed(second, "Second")));
}

TEST_F(X11FrontApplicationTest, TheWindowsThatADialogBelongsToComeBeforeTheOthers) {
    startWithManager();
    const xcb_window_t owner = writer("Letter");
    const xcb_window_t other = writer("Other");
    const xcb_window_t dialog = writer("Find");
    const xcb_window_t question = writer("Replace?");
    client->setNumbers(dialog, "WM_TRANSIENT_FOR", "WINDOW", {owner});
    client->setNumbers(question, "WM_TRANSIENT_FOR", "WINDOW", {dialog});
    activate(other);
    activate(question);
    EXPECT_THAT(
        told.back().windows, ElementsAre(
                                 listed(question, "Replace?"), listed(dialog, "Find"),
                                 listed(owner, "Letter"), listed(other, "Other")));
}

TEST_F(X11FrontApplicationTest, ADialogThatIsNotKnownIsOfTheApplicationThatItBelongsTo) {
    startWithManager();
    const xcb_window_t sums = calc("Sums");
    const xcb_window_t tip =
        client->makeWindow({.instance = "soffice", .className = "Soffice", .title = "Tip of the Day"});
    client->setNumbers(tip, "WM_TRANSIENT_FOR", "WINDOW", {sums});
    activate(tip);
    EXPECT_EQ(told.back().bundleID, "libreoffice-calc");
    EXPECT_EQ(told.back().name, "LibreOffice Calc");
    EXPECT_THAT(told.back().windows, ElementsAre(listed(tip, "Tip of the Day"), listed(sums, "Sums")));
    EXPECT_THAT(iconsOf, IsEmpty());
}

TEST_F(X11FrontApplicationTest, WindowsThatBelongToEachOtherInARingDoNoHarm) {
    startWithManager();
    const xcb_window_t one = writer("One");
    const xcb_window_t two = writer("Two");
    client->setNumbers(one, "WM_TRANSIENT_FOR", "WINDOW", {two});
    client->setNumbers(two, "WM_TRANSIENT_FOR", "WINDOW", {one});
    activate(one);
    EXPECT_THAT(told.back().windows, ElementsAre(listed(one, "One"), listed(two, "Two")));
}

TEST_F(X11FrontApplicationTest, AWindowThatBelongsToTheWholeScreenBelongsToNone) {
    startWithManager();
    const xcb_window_t dialog = writer("Find");
    client->setNumbers(dialog, "WM_TRANSIENT_FOR", "WINDOW", {client->root()});
    activate(dialog);
    EXPECT_THAT(told.back().windows, ElementsAre(listed(dialog, "Find")));
}

TEST_F(X11FrontApplicationTest, WindowsThatVanishAreLeftOut) {
    startWithManager();
    const xcb_window_t first = writer("First");
    const xcb_window_t second = writer("Second");
    activate(first);
    activate(second);
    client->destroy(first);
    EXPECT_THAT(front->current()->windows, ElementsAre(listed(second, "Second")));
}

TEST_F(X11FrontApplicationTest, AnActiveWindowThatIsGoneAlreadyIsNotTold) {
    startWithManager();
    const xcb_window_t window = writer("Short-lived");
    client->destroy(window);
    client->setActiveWindow(window);
    settle();
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(front->current(), std::nullopt);
    activate(writer("Letter"));
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(X11FrontApplicationTest, TheSameWindowIsToldOnce) {
    startWithManager();
    const xcb_window_t window = writer("Letter");
    activate(window);
    client->setActiveWindow(window);
    settle();
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(X11FrontApplicationTest, AFloodOfChangesIsAnsweredOnce) {
    startWithManager();
    std::vector<xcb_window_t> windows;
    for (int i = 0; i < 40; ++i) {
        const std::string name = "class" + std::to_string(i);
        windows.push_back(client->makeWindow({.instance = name, .className = name}));
    }
    constexpr int times = 20'000;
    const auto before = requestsSoFar();
    client->floodActiveWindow(windows, times);
    ASSERT_TRUE(waitFor([&] { return !told.empty() && told.back().windows.at(0).id == windows.back(); }));
    EXPECT_LT(requestsSoFar() - before, times / 10U);
    EXPECT_LT(told.size(), 100U);
}

TEST_F(X11FrontApplicationTest, WithoutAnActiveWindowThereIsNoFrontApplication) {
    startWithManager();
    const xcb_window_t window = writer("Letter");
    activate(window);
    client->setActiveWindow(XCB_NONE);
    EXPECT_TRUE(waitFor([&] { return !front->current(); }));
    activate(window);
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(X11FrontApplicationTest, ATitleThatChangesIsAskedAnew) {
    startWithManager();
    const xcb_window_t window = writer("Letter");
    activate(window);
    client->setText(window, "_NET_WM_NAME", "UTF8_STRING", "*Letter");
    EXPECT_EQ(front->current()->windows.at(0).title, "*Letter");
}

TEST_F(X11FrontApplicationTest, OldTitlesAreRead) {
    startWithManager();
    const xcb_window_t latin = client->makeWindow({.instance = "xedit", .className = "Xedit"});
    client->setText(latin, "WM_NAME", "STRING", "caf\xe9");
    activate(latin);
    EXPECT_EQ(told.back().windows.at(0).title, "café");
    const xcb_window_t modern = client->makeWindow({.instance = "xedit", .className = "Xedit"});
    client->setText(modern, "WM_NAME", "UTF8_STRING", "thé");
    activate(modern);
    EXPECT_EQ(told.back().windows.at(0).title, "thé");
}

TEST_F(X11FrontApplicationTest, AnOldTitleInAnEncodingOfItsOwnIsNone) {
    startWithManager();
    const xcb_window_t window = client->makeWindow({.instance = "xedit", .className = "Xedit"});
    client->setText(window, "WM_NAME", "COMPOUND_TEXT", "\x1b$(B4A;z\x1b(B");
    activate(window);
    EXPECT_EQ(told.back().windows.at(0).title, "");
}

TEST_F(X11FrontApplicationTest, PropertiesOfTheWrongKindDoNoHarm) {
    startWithManager();
    const xcb_window_t window = client->makeWindow({});
    client->setNumbers(window, "WM_CLASS", "CARDINAL", {1, 2, 3});
    client->setText(window, "WM_TRANSIENT_FOR", "STRING", "nonsense");
    client->setText(window, "_NET_WM_NAME", "UTF8_STRING", "broken \xff\xfe");
    activate(window);
    EXPECT_EQ(told.back().windows.at(0).title, "broken \xef\xbf\xbd\xef\xbf\xbd");
    EXPECT_EQ(told.back().bundleID, "");
}

TEST_F(X11FrontApplicationTest, ApplicationsAreToldOnceTheirEntriesHaveBeenRead) {
    manager = client->becomeWindowManager();
    const xcb_window_t window = writer("Letter");
    client->setActiveWindow(window);
    front = std::make_unique<X11FrontApplication>(x11, *identifier);
    listener = front->onActivated([this](const RunningApp& app) { told.push_back(app); });
    settle();
    EXPECT_EQ(front->current(), std::nullopt);
    EXPECT_THAT(told, IsEmpty());
    background.runAll();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.back().bundleID, "libreoffice-writer");
}

TEST_F(X11FrontApplicationTest, WindowsFromBeforeTheStartAreKnownByTheirOrder) {
    manager = client->becomeWindowManager();
    const xcb_window_t lower = writer("Lower");
    const xcb_window_t upper = writer("Upper");
    const xcb_window_t active = writer("Active");
    client->setNumbers(client->root(), "_NET_CLIENT_LIST_STACKING", "WINDOW", {lower, upper, active});
    client->setActiveWindow(active);
    start();
    EXPECT_THAT(
        front->current()->windows,
        ElementsAre(listed(active, "Active"), listed(upper, "Upper"), listed(lower, "Lower")));
}

TEST_F(X11FrontApplicationTest, TheIconOfAnApplicationWithoutAnEntryIsNoted) {
    startWithManager();
    std::vector<std::uint32_t> picture(2 + 4, 0xff00ff00);
    picture[0] = picture[1] = 2;
    const xcb_window_t unknown = client->makeWindow({.instance = "homemade", .className = "Homemade"});
    client->setNumbers(unknown, "_NET_WM_ICON", "CARDINAL", picture);
    activate(unknown);
    const xcb_window_t known = writer("Letter");
    client->setNumbers(known, "_NET_WM_ICON", "CARDINAL", picture);
    activate(known);
    EXPECT_THAT(iconsOf, ElementsAre("homemade"));
}

TEST_F(X11FrontApplicationTest, WithoutAWindowManagerTheKeyboardTells) {
    start();
    const xcb_window_t first = writer("First");
    const xcb_window_t second = calc("Second");
    client->setFocus(first);
    ASSERT_TRUE(waitFor([&] { return told.size() == 1; }));
    client->setFocus(second);
    ASSERT_TRUE(waitFor([&] { return told.size() == 2; }));
    EXPECT_EQ(told.at(0).windows.at(0), listed(first, "First"));
    EXPECT_EQ(told.at(1).windows.at(0), listed(second, "Second"));
    client->setFocus(XCB_INPUT_FOCUS_POINTER_ROOT);
    EXPECT_TRUE(waitFor([&] { return !front->current(); }));
    client->setFocus(second);
    EXPECT_TRUE(waitFor([&] { return told.size() == 3; }));
}

TEST_F(X11FrontApplicationTest, AFocusedWindowThatVanishesIsNoLongerInFront) {
    start();
    const xcb_window_t window = writer("Letter");
    client->setFocus(window);
    ASSERT_TRUE(waitFor([&] { return told.size() == 1; }));
    client->destroy(window);
    EXPECT_TRUE(waitFor([&] { return !front->current(); }));
}

TEST_F(X11FrontApplicationTest, AWindowManagerThatEndsNoLongerTells) {
    startWithManager();
    const xcb_window_t first = writer("First");
    const xcb_window_t second = calc("Second");
    activate(first);
    client->setFocus(second);
    client->destroy(manager);
    manager = XCB_NONE;
    ASSERT_TRUE(waitFor([&] { return told.size() == 2; }));
    EXPECT_EQ(told.back().bundleID, "libreoffice-calc");
}

TEST_F(X11FrontApplicationTest, AWindowManagerThatStartsLaterTells) {
    start();
    const xcb_window_t window = writer("Letter");
    manager = client->becomeWindowManager();
    activate(window);
    EXPECT_EQ(told.back().bundleID, "libreoffice-writer");
}

TEST_F(X11FrontApplicationTest, OurOwnPanelIsNoFrontApplication) {
    startWithManager();
    const xcb_window_t window = writer("Letter");
    activate(window);
    client->setFocus(client->makeWindow({.overrideRedirect = true}));
    client->setActiveWindow(XCB_NONE);
    settle();
    ASSERT_TRUE(front->current());
    EXPECT_EQ(front->current()->windows.at(0).id, window);
    client->setActiveWindow(window);
    settle();
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(X11FrontApplicationTest, OurOwnPanelIsNoFrontApplicationWithoutAWindowManagerEither) {
    start();
    const xcb_window_t window = writer("Letter");
    client->setFocus(window);
    ASSERT_TRUE(waitFor([&] { return told.size() == 1; }));
    client->setFocus(client->makeWindow({.overrideRedirect = true}));
    settle();
    ASSERT_TRUE(front->current());
    EXPECT_EQ(front->current()->windows.at(0).id, window);
}

struct X11LateFrontApplicationTest : X11FrontApplicationTest {
    X11LateFrontApplicationTest() { patience = X11Connection::mainThreadPatience; }
};

TEST_F(X11LateFrontApplicationTest, AServerThatDoesNotAnswerDelaysTheNewsAndLosesNone) {
    startWithManager();
    const xcb_window_t first = writer("First");
    const xcb_window_t second = calc("Second");
    activate(first);
    client->grabServer();
    client->setActiveWindow(second);
    ASSERT_TRUE(waitFor([&] { return x11->isLate(); }));
    EXPECT_EQ(front->current()->bundleID, "libreoffice-writer");
    client->ungrabServer();
    ASSERT_TRUE(waitFor([&] { return told.size() == 2; }));
    EXPECT_EQ(told.back().bundleID, "libreoffice-calc");
}

TEST(X11FrontApplicationWithoutServerTest, WhenTheServerGoesAwayNothingIsInFront) {
    XServer server;
    const auto x11 = X11Connection::open(server.display(), std::chrono::seconds(10));
    ASSERT_NE(x11, nullptr);
    TestClient client(server.display());
    client.becomeWindowManager();
    client.setActiveWindow(
        client.makeWindow({.instance = "libreoffice", .className = "libreoffice-writer", .title = "Letter"}));
    FakeBackground background;
    const FakeClock clock;
    AppIdentifier identifier(background, clock, office, "/nonexistent");
    background.runAll();
    const X11FrontApplication front(x11, identifier);
    ASSERT_TRUE(front.current());
    server.kill();
    EXPECT_TRUE(waitFor([&] { return !front.current(); }));
}

TEST(X11FrontApplicationWithoutServerTest, TheWindowsOwnWordForItsProcessCountsWhereTheServerHasNone) {
    XServer server({QStringLiteral("-extension"), QStringLiteral("X-Resource")});
    const auto x11 = X11Connection::open(server.display(), std::chrono::seconds(10));
    ASSERT_NE(x11, nullptr);
    TestClient client(server.display());
    client.becomeWindowManager();
    const xcb_window_t window = client.makeWindow({.className = "libreoffice-writer"});
    client.setNumbers(window, "_NET_WM_PID", "CARDINAL", {4242});
    client.setActiveWindow(window);
    FakeBackground background;
    const FakeClock clock;
    AppIdentifier identifier(background, clock, office, "/nonexistent");
    background.runAll();
    const X11FrontApplication front(x11, identifier);
    ASSERT_TRUE(front.current());
    EXPECT_EQ(front.current()->pid, 4242);
}

} // namespace
} // namespace quillon
