#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/work_areas.h>

#include <gtest/gtest.h>

#include <optional>

namespace quillon {
namespace {

/// Two monitors beside each other on the server's screen, of which they need not be known to the server.
struct WorkAreasTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        const X11Reply<xcb_get_geometry_reply_t> screen(
            xcb_get_geometry_reply(x11->xcb(), xcb_get_geometry(x11->xcb(), x11->root()), nullptr));
        ASSERT_NE(screen, nullptr);
        const int half = screen->width / 2;
        left = {0, 0, half, screen->height};
        right = {half, 0, half, screen->height};
        dock = client->makeWindow({});
    }
    void TearDown() override {
        client->ungrabServer();
        client->remove(client->root(), "_NET_CLIENT_LIST");
        client->remove(client->root(), "_GTK_WORKAREAS_D0");
    }
    void list(const std::vector<std::uint32_t>& windows) {
        client->setNumbers(client->root(), "_NET_CLIENT_LIST", "WINDOW", windows);
    }
    /// Docks at the inner edge of the right monitor.
    void dockInside(std::uint32_t width) {
        const auto bottom = static_cast<std::uint32_t>(right.height - 1);
        client->setNumbers(
            dock, "_NET_WM_STRUT_PARTIAL", "CARDINAL",
            {static_cast<std::uint32_t>(right.x) + width, 0, 0, 0, 0, bottom, 0, 0, 0, 0, 0, 0});
    }
    PixelBox rightWithout(int width) const {
        return {right.x + width, right.y, right.width - width, right.height};
    }

    PixelBox left;
    PixelBox right;
    xcb_window_t dock = XCB_NONE;
};

TEST_F(WorkAreasTest, NothingIsKnownWithoutAWindowManager) {
    EXPECT_EQ(WorkAreas(x11).freeOf(right), std::nullopt);
}

TEST_F(WorkAreasTest, ADockAtAnInnerEdgeIsRespectedByItsMonitorOnly) {
    dockInside(40);
    list({client->makeWindow({}), dock});
    WorkAreas areas(x11);
    EXPECT_EQ(areas.freeOf(right), rightWithout(40));
    EXPECT_EQ(areas.freeOf(left), left);
}

TEST_F(WorkAreasTest, AnOldStrutIsRespectedToo) {
    client->setNumbers(dock, "_NET_WM_STRUT", "CARDINAL", {0, 0, 30, 0});
    list({dock});
    EXPECT_EQ(WorkAreas(x11).freeOf(left), (PixelBox{0, 30, left.width, left.height - 30}));
}

TEST_F(WorkAreasTest, WhatTheWindowManagerTellsOfAMonitorCounts) {
    list({dock});
    const PixelBox told{right.x + 5, 7, right.width - 10, right.height - 20};
    client->setNumbers(
        client->root(), "_GTK_WORKAREAS_D0", "CARDINAL",
        {static_cast<std::uint32_t>(left.x), static_cast<std::uint32_t>(left.y),
         static_cast<std::uint32_t>(left.width), static_cast<std::uint32_t>(left.height),
         static_cast<std::uint32_t>(told.x), static_cast<std::uint32_t>(told.y),
         static_cast<std::uint32_t>(told.width), static_cast<std::uint32_t>(told.height), 1, 2});
    WorkAreas areas(x11);
    EXPECT_EQ(areas.freeOf(right), told);
    EXPECT_EQ(areas.freeOf(left), left);
}

TEST_F(WorkAreasTest, ItIsToldWhenADockComesGrowsAndGoes) {
    list({});
    WorkAreas areas(x11);
    int told = 0;
    const Subscription listener = areas.onChanged([&] { ++told; });
    EXPECT_EQ(areas.freeOf(right), right);

    dockInside(40);
    list({dock});
    EXPECT_TRUE(waitFor([&] { return told == 1; }));
    EXPECT_EQ(areas.freeOf(right), rightWithout(40));

    settle();
    dockInside(60);
    EXPECT_TRUE(waitFor([&] { return told == 2; }));
    EXPECT_EQ(areas.freeOf(right), rightWithout(60));

    client->destroy(dock);
    list({});
    EXPECT_TRUE(waitFor([&] { return told == 3; }));
    EXPECT_EQ(areas.freeOf(right), right);
}

TEST_F(WorkAreasTest, WhatIsKnownIsNotAskedForAgain) {
    list({dock});
    WorkAreas areas(x11);
    areas.freeOf(right);
    const unsigned before = requestsSoFar();
    areas.freeOf(right);
    areas.freeOf(left);
    EXPECT_EQ(requestsSoFar(), before + 1);
}

TEST_F(WorkAreasTest, ManyChangesAskForNothingUntilSomebodyWantsToKnow) {
    list({dock});
    WorkAreas areas(x11);
    int told = 0;
    const Subscription listener = areas.onChanged([&] { ++told; });
    areas.freeOf(right);
    settle();
    const unsigned before = requestsSoFar();
    for (int i = 0; i < 100; ++i)
        list({dock});
    EXPECT_TRUE(waitFor([&] { return told == 1; }));
    settle();
    EXPECT_EQ(told, 1) << "nobody has asked since";
    EXPECT_LT(requestsSoFar() - before, 10U);
}

TEST_F(WorkAreasTest, VanishedWindowsDoNoHarmAndThereMayBeMany) {
    dockInside(40);
    std::vector<std::uint32_t> windows(1000, 0x1FFFFFFF);
    windows.front() = dock;
    list(windows);
    WorkAreas areas(x11);
    EXPECT_EQ(areas.freeOf(right), rightWithout(40));
    EXPECT_LT(requestsSoFar(), 700U);
}

struct LateServersWorkAreasTest : WorkAreasTest {
    LateServersWorkAreasTest() { patience = std::chrono::milliseconds(30); }
};

TEST_F(LateServersWorkAreasTest, StaysAsItWasAndIsToldOnceTheServerAnswers) {
    dockInside(40);
    list({dock});
    WorkAreas areas(x11);
    ASSERT_TRUE(waitFor([&] { return areas.freeOf(right) == rightWithout(40); }));
    int told = 0;
    const Subscription listener = areas.onChanged([&] { ++told; });
    list({});
    ASSERT_TRUE(waitFor([&] { return told == 1; }));
    client->grabServer();
    EXPECT_EQ(areas.freeOf(right), rightWithout(40));
    client->ungrabServer();
    EXPECT_TRUE(waitFor([&] { return told == 2; }));
    EXPECT_TRUE(waitFor([&] { return areas.freeOf(right) == right; }));
}

} // namespace
} // namespace quillon
