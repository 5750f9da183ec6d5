#include <quillon/app/views/overlay/overlay_view.h>
#include <quillon/tests/app/views/support/view_desk.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

namespace quillon {
namespace {

class OverlayPanelTest : public testing::Test {
  protected:
    /// The overlay's panel; null before it was made.
    QWidget* panel() const {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (dynamic_cast<FloatingPanel*>(widget) && widget->findChild<OverlayView*>())
                return widget;
        }
        return nullptr;
    }

    ViewDesk desk;
};

TEST_F(OverlayPanelTest, TheModelsOverlayIsShownInOnePanelThatIsKept) {
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

TEST_F(OverlayPanelTest, AnOverlayThatWasPreparedIsTheOneThatIsShown) {
    desk.trust();
    desk.showSample();
    desk.model.preparePanels();
    QWidget* prepared = panel();
    ASSERT_NE(prepared, nullptr);
    EXPECT_FALSE(prepared->isVisible());
    EXPECT_EQ(desk.panelWindows.prepared().size(), 2U);
    desk.model.showOverlay(Stickiness::held);
    EXPECT_EQ(panel(), prepared);
    EXPECT_TRUE(prepared->isVisible());
    EXPECT_EQ(desk.panelWindows.prepared().size(), 2U);
}

TEST_F(OverlayPanelTest, AStickyOverlayIsTypedIntoAndClosedByEscape) {
    desk.trust();
    desk.showSample();
    desk.model.showOverlay(Stickiness::sticky);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel()));
    ASSERT_TRUE(makeActive(*panel()));
    EXPECT_TRUE(desk.panelWindows.keyboardOwner());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("save"));
    EXPECT_EQ(desk.model.query(), "save");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(desk.model.overlayVisible());
    EXPECT_EQ(desk.model.query(), "");
    EXPECT_FALSE(desk.panelWindows.keyboardOwner());
}

TEST_F(OverlayPanelTest, AHeldOverlayIsKeptByATapAndClosedByAPressElsewhere) {
    desk.trust();
    desk.showSample();
    desk.model.showOverlay(Stickiness::held);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel()));
    EXPECT_FALSE(desk.panelWindows.keyboardOwner());
    QTest::mouseClick(
        panel()->findChild<OverlayView*>()->area().viewport(), Qt::LeftButton, {}, QPoint(30, 50));
    EXPECT_TRUE(desk.model.overlaySticky());
    EXPECT_TRUE(desk.panelWindows.keyboardOwner());
    desk.panelWindows.pressElsewhere();
    EXPECT_FALSE(desk.model.overlayVisible());
}

TEST_F(OverlayPanelTest, IsReadAsADialogThatBearsTheOverlaysName) {
    desk.trust();
    desk.showSample();
    desk.model.showOverlay(Stickiness::held);
    const QAccessibleInterface* read = QAccessible::queryAccessibleInterface(panel());
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->role(), QAccessible::Dialog);
    EXPECT_EQ(read->text(QAccessible::Name), panel()->findChild<OverlayView*>()->accessibleName());
}

} // namespace
} // namespace quillon
