#include "support/fake_panel_windows.h"

#include <quillon/app/platform/qt/panels/qt_panel_maker.h>

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWidget>

namespace quillon {
namespace {

struct QtPanelMakerTest : testing::Test {
    FakePanelWindows windows;
    QtPanelMaker maker{windows};
};

TEST_F(QtPanelMakerTest, TellsTheMonitorsTheMainOneFirst) {
    const std::vector<Screen> screens = maker.screens();
    ASSERT_EQ(screens.size(), static_cast<std::size_t>(QGuiApplication::screens().size()));
    const QRect main = QGuiApplication::primaryScreen()->geometry();
    EXPECT_EQ(
        screens[0].frame,
        (Rect{0, 0, static_cast<double>(main.width()), static_cast<double>(main.height())}));
}

TEST_F(QtPanelMakerTest, AMonitorsVisibleFrameIsWhatDocksLeaveFree) {
    const QRect main = QGuiApplication::primaryScreen()->geometry();
    windows.setFree(PixelBox{30, 20, main.width() - 30, main.height() - 60});
    EXPECT_EQ(
        maker.screens()[0].visibleFrame,
        (Rect{30, 20, static_cast<double>(main.width() - 30), static_cast<double>(main.height() - 60)}));
    EXPECT_EQ(windows.askedMonitor(), (PixelBox{main.x(), main.y(), main.width(), main.height()}));
}

TEST_F(QtPanelMakerTest, AndTheToolkitsWhereTheDesktopDoesNotTellOrTellsOfAnotherPlace) {
    const QRect told = QGuiApplication::primaryScreen()->availableGeometry();
    const Rect toolkits{
        static_cast<double>(told.x()), static_cast<double>(told.y()), static_cast<double>(told.width()),
        static_cast<double>(told.height())};
    EXPECT_EQ(maker.screens()[0].visibleFrame, toolkits);
    windows.setFree(PixelBox{told.right() + 100, 0, 500, 500});
    EXPECT_EQ(maker.screens()[0].visibleFrame, toolkits);
}

TEST_F(QtPanelMakerTest, TellsWhenADockChanges) {
    int told = 0;
    Subscription listener = maker.onScreensChanged([&] { ++told; });
    windows.setFree(PixelBox{0, 30, 500, 500});
    EXPECT_EQ(told, 1);
    listener.reset();
    windows.setFree(std::nullopt);
    EXPECT_EQ(told, 1);
}

TEST_F(QtPanelMakerTest, TellsWhereThePointerIs) {
    QCursor::setPos(123, 45);
    EXPECT_EQ(maker.pointer(), (Point{123, 45}));
}

TEST_F(QtPanelMakerTest, TellsWhenAMonitorChangesWhileItIsAsked) {
    int told = 0;
    Subscription listener = maker.onScreensChanged([&] { ++told; });
    QScreen* screen = QGuiApplication::primaryScreen();
    Q_EMIT screen->availableGeometryChanged(screen->availableGeometry());
    EXPECT_EQ(told, 1);
    listener.reset();
    Q_EMIT screen->availableGeometryChanged(screen->availableGeometry());
    EXPECT_EQ(told, 1);
}

TEST_F(QtPanelMakerTest, APanelShowsItsContentAndTakesItAlong) {
    auto widget = std::make_shared<QWidget>();
    const QPointer<QWidget> content = widget.get();
    auto panel = maker.makePanel({.widget = std::move(widget), .traits = {}, .prepare = {}});
    EXPECT_FALSE(panel->isVisible());
    panel->setFrame({10, 20, 200, 100});
    panel->orderFront();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(content->isVisible());
    panel.reset();
    EXPECT_TRUE(content.isNull());
}

} // namespace
} // namespace quillon
