#include <quillon/app/views/overlay/overlay_view.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

namespace quillon {
namespace {

class QtPanelHostTest : public testing::Test {
  protected:
    /// The overlay's panel; null before it was made.
    QWidget* panel() const {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (dynamic_cast<FloatingPanel*>(widget))
                return widget;
        }
        return nullptr;
    }

    ViewDesk desk;
};

TEST_F(QtPanelHostTest, TellsTheMonitorsTheMainOneFirst) {
    const std::vector<Screen> screens = desk.host.screens();
    ASSERT_EQ(screens.size(), static_cast<std::size_t>(QGuiApplication::screens().size()));
    const QRect main = QGuiApplication::primaryScreen()->geometry();
    EXPECT_EQ(
        screens[0].frame,
        (Rect{0, 0, static_cast<double>(main.width()), static_cast<double>(main.height())}));
}

TEST_F(QtPanelHostTest, TellsWhereThePointerIs) {
    QCursor::setPos(123, 45);
    EXPECT_EQ(desk.host.pointer(), (Point{123, 45}));
}

TEST_F(QtPanelHostTest, TheModelsOverlayIsShownInOnePanelThatIsKept) {
    desk.trust();
    desk.showSample();
    desk.model.showOverlay(Stickiness::held);
    QWidget* first = panel();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(first->findChild<OverlayView*>()->state(), OverlayState::shortcuts);
    desk.model.closeOverlay();
    EXPECT_FALSE(first->isVisible());
    desk.model.showOverlay(Stickiness::sticky);
    EXPECT_EQ(panel(), first);
    EXPECT_TRUE(first->isVisible());
}

TEST_F(QtPanelHostTest, AnOverlayThatWasPreparedIsTheOneThatIsShown) {
    desk.trust();
    desk.showSample();
    desk.model.prepareOverlay();
    QWidget* prepared = panel();
    ASSERT_NE(prepared, nullptr);
    EXPECT_FALSE(prepared->isVisible());
    EXPECT_EQ(desk.desktop.panels.prepared().size(), 1U);
    desk.model.showOverlay(Stickiness::held);
    EXPECT_EQ(panel(), prepared);
    EXPECT_TRUE(prepared->isVisible());
    EXPECT_EQ(desk.desktop.panels.prepared().size(), 1U);
}

TEST_F(QtPanelHostTest, AStickyOverlayIsTypedIntoAndClosedByEscape) {
    desk.trust();
    desk.showSample();
    desk.model.showOverlay(Stickiness::sticky);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel()));
    QApplication::setActiveWindow(panel());
    EXPECT_TRUE(desk.desktop.panels.keyboardOwner());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("save"));
    EXPECT_EQ(desk.model.query(), "save");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(desk.model.overlayVisible());
    EXPECT_EQ(desk.model.query(), "");
    EXPECT_FALSE(desk.desktop.panels.keyboardOwner());
}

TEST_F(QtPanelHostTest, AHeldOverlayIsKeptByATapAndClosedByAPressElsewhere) {
    desk.trust();
    desk.showSample();
    desk.model.showOverlay(Stickiness::held);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel()));
    EXPECT_FALSE(desk.desktop.panels.keyboardOwner());
    QTest::mouseClick(
        panel()->findChild<OverlayView*>()->area().viewport(), Qt::LeftButton, {}, QPoint(30, 50));
    EXPECT_TRUE(desk.model.overlaySticky());
    EXPECT_TRUE(desk.desktop.panels.keyboardOwner());
    desk.desktop.panels.pressElsewhere();
    EXPECT_FALSE(desk.model.overlayVisible());
}

} // namespace
} // namespace quillon
