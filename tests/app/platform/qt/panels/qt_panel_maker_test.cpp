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
