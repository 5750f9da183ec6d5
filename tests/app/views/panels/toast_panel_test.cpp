#include <quillon/app/views/toast/nudge_toast_view.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QPropertyAnimation>

namespace quillon {
namespace {

const MenuEntry save{{"File", "Save"}, {Modifiers::control, Key::character("S")}, true};
const MenuEntry open{{"File", "Open"}, {Modifiers::control, Key::character("O")}, true};

class ToastPanelTest : public testing::Test {
  protected:
    /// The toast's panel; null before it was made.
    QWidget* panel() const {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (dynamic_cast<FloatingPanel*>(widget) && widget->findChild<NudgeToastView*>())
                return widget;
        }
        return nullptr;
    }
    NudgeToastView& view() const { return *panel()->findChild<NudgeToastView*>(); }
    void finishFading() const {
        auto* fade = panel()->findChild<QPropertyAnimation*>();
        fade->setCurrentTime(fade->duration());
    }
    void pass(double seconds) { desk.desktop.timers.advance(Seconds(seconds)); }

    ViewDesk desk;
};

TEST_F(ToastPanelTest, ANudgeIsShownAndGoesByItself) {
    desk.clickInMenu(save);
    ASSERT_NE(panel(), nullptr);
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_EQ(view().entry(), save);
    EXPECT_EQ(view().size(), QSize(360, 92));
    finishFading();
    pass(2.8);
    EXPECT_TRUE(panel()->isVisible()) << "it fades out";
    finishFading();
    EXPECT_FALSE(panel()->isVisible());
}

TEST_F(ToastPanelTest, ANewerNudgeTakesItsPlace) {
    desk.clickInMenu(save);
    QWidget* first = panel();
    finishFading();
    pass(2.0);
    desk.clickInMenu(open);
    EXPECT_EQ(panel(), first);
    EXPECT_EQ(view().entry(), open);
    finishFading();
    pass(2.0);
    EXPECT_DOUBLE_EQ(panel()->windowOpacity(), 1) << "its own time is not over";
    pass(0.8);
    finishFading();
    EXPECT_FALSE(panel()->isVisible());
}

TEST_F(ToastPanelTest, OneThatIsFadingOutIsShownAnew) {
    desk.clickInMenu(save);
    finishFading();
    pass(2.8);
    panel()->findChild<QPropertyAnimation*>()->setCurrentTime(200);
    desk.clickInMenu(open);
    EXPECT_DOUBLE_EQ(panel()->windowOpacity(), 0);
    finishFading();
    EXPECT_DOUBLE_EQ(panel()->windowOpacity(), 1);
    EXPECT_TRUE(panel()->isVisible());
}

TEST_F(ToastPanelTest, IsNeverThereForPointerOrKeyboard) {
    desk.clickInMenu(save);
    EXPECT_EQ(desk.panelWindows.shape(), WindowShape());
    EXPECT_FALSE(desk.panelWindows.keyboardOwner());
    EXPECT_EQ(desk.panelWindows.pressListeners(), 0U);
    EXPECT_TRUE(panel()->windowFlags() & Qt::WindowDoesNotAcceptFocus);
}

} // namespace
} // namespace quillon
