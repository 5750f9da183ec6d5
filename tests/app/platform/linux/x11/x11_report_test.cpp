#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/x11_report.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

struct X11ReportTest : X11Fixture {};

TEST_F(X11ReportTest, ABareServerHasExtensionsAndNobodyAround) {
    const X11Report report = x11Report(x11Display());
    EXPECT_TRUE(report.display);
    ASSERT_TRUE(report.xinput);
    EXPECT_GE(*report.xinput, (X11Version{2, 2}));
    EXPECT_TRUE(report.rawInput);
    EXPECT_TRUE(report.xkb);
    EXPECT_TRUE(report.keymap);
    EXPECT_TRUE(report.shape);
    EXPECT_TRUE(report.clientPids);
    EXPECT_FALSE(report.compositor);
    EXPECT_FALSE(report.tray);
    EXPECT_EQ(report.windowManager, std::nullopt);
}

TEST_F(X11ReportTest, WhoIsAroundIsTold) {
    const xcb_window_t manager = client->becomeWindowManager();
    client->ownSelection("_NET_WM_CM_S0", manager);
    client->ownSelection("_NET_SYSTEM_TRAY_S0", manager);
    const X11Report report = x11Report(x11Display());
    EXPECT_EQ(report.windowManager, "Stand-in");
    EXPECT_TRUE(report.compositor);
    EXPECT_TRUE(report.tray);
}

TEST_F(X11ReportTest, AWindowManagerThatHasEndedIsNotTold) {
    client->destroy(client->becomeWindowManager());
    EXPECT_EQ(x11Report(x11Display()).windowManager, std::nullopt);
}

TEST(X11ReportWithoutServerTest, NothingIsKnown) {
    EXPECT_EQ(x11Report("/nonexistent/socket:0"), X11Report());
}

} // namespace
} // namespace quillon
