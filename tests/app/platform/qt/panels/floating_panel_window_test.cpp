#include "support/fake_panel_windows.h"

#include <quillon/app/platform/qt/panels/floating_panel_window.h>
#include <quillon/app/platform/qt/panels/rounded_box.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPropertyAnimation>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <chrono>
#include <memory>

namespace quillon {
namespace {

using namespace std::chrono_literals;

class FloatingPanelWindowTest : public testing::Test {
  protected:
    FloatingPanelWindowTest() {
        panel.onEscape = [this] { ++escapes; };
        panel.onResign = [this] { ++resigns; };
        panel.setFrame({100, 80, 400, 300});
    }
    void showWithKeyboard() {
        panel.orderFront();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
        panel.makeKey();
        ASSERT_TRUE(makeActive(panel));
    }
    void closeOnResign() {
        panel.onResign = [this] {
            ++resigns;
            panel.orderOut();
        };
    }
    std::uintptr_t window() { return static_cast<std::uintptr_t>(panel.winId()); }

    FakePanelWindows desktop;
    std::shared_ptr<QWidget> content = std::make_shared<QWidget>();
    QLineEdit* field = new QLineEdit(content.get());
    FloatingPanelWindow panel{{.widget = content, .traits = {.cornerRadius = 16}, .prepare = {}}, desktop};
    int escapes = 0;
    int resigns = 0;
};

TEST_F(FloatingPanelWindowTest, IsUnmanagedBorderlessAndOnTop) {
    const Qt::WindowFlags flags = panel.windowFlags();
    EXPECT_TRUE(flags & Qt::FramelessWindowHint);
    EXPECT_TRUE(flags & Qt::BypassWindowManagerHint);
    EXPECT_TRUE(flags & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(panel.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(panel.testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(FloatingPanelWindowTest, TheContentIsWhereTheFrameIsAndTheShadowAround) {
    panel.orderFront();
    EXPECT_EQ(QRect(content->mapToGlobal(QPoint(0, 0)), content->size()), QRect(100, 80, 400, 300));
    EXPECT_EQ(panel.geometry(), QRect(100, 80, 400, 300).adjusted(-36, -36, 36, 36));
}

TEST_F(FloatingPanelWindowTest, ThePointerReachesWhatLiesUnderTheShadow) {
    panel.orderFront();
    EXPECT_EQ(desktop.shape(), (WindowShape{.shown = {}, .touchable = roundedBoxes({36, 36, 400, 300}, 16)}));
    panel.setFrame({100, 80, 500, 350});
    EXPECT_EQ(desktop.shape().touchable, roundedBoxes({36, 36, 500, 350}, 16));
}

TEST_F(FloatingPanelWindowTest, OneThatPassesInputIsNotThereForThePointer) {
    FloatingPanelWindow toast(
        {.widget = std::make_shared<QWidget>(), .traits = {.input = PanelInput::passes}, .prepare = {}},
        desktop);
    toast.setFrame({100, 80, 360, 92});
    toast.orderFront();
    EXPECT_EQ(desktop.shape(), WindowShape());
    EXPECT_TRUE(toast.windowFlags() & Qt::WindowTransparentForInput);
    EXPECT_TRUE(toast.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_FALSE(panel.windowFlags() & (Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus));
}

TEST_F(FloatingPanelWindowTest, OneWithoutAShadowIsNoLargerThanItsContent) {
    FloatingPanelWindow plain(
        {.widget = std::make_shared<QWidget>(), .traits = {.hasShadow = false}, .prepare = {}}, desktop);
    plain.setFrame({100, 80, 400, 300});
    plain.orderFront();
    EXPECT_EQ(plain.geometry(), QRect(100, 80, 400, 300));
}

TEST_F(FloatingPanelWindowTest, OnATinyScreenTheContentShrinks) {
    content->setLayout(new QVBoxLayout);
    content->layout()->addWidget(field);
    field->setMinimumWidth(600);
    panel.setFrame({0, 0, 400, 300});
    panel.orderFront();
    EXPECT_EQ(panel.geometry(), QRect(0, 0, 400, 300).adjusted(-36, -36, 36, 36));
    EXPECT_EQ(content->size(), QSize(400, 300));
}

TEST_F(FloatingPanelWindowTest, WithoutBlendingCornersAreCutAndThereIsNoShadow) {
    panel.orderFront();
    desktop.setComposited(false);
    EXPECT_EQ(panel.geometry(), QRect(100, 80, 400, 300));
    EXPECT_EQ(QRect(content->mapToGlobal(QPoint(0, 0)), content->size()), QRect(100, 80, 400, 300));
    const auto round = roundedBoxes({0, 0, 400, 300}, 16);
    EXPECT_EQ(desktop.shape(), (WindowShape{.shown = round, .touchable = round}));
    desktop.setComposited(true);
    EXPECT_FALSE(desktop.shape().shown);
    EXPECT_EQ(panel.geometry().width(), 472);
}

TEST_F(FloatingPanelWindowTest, IsPreparedOnceBeforeItIsFirstShown) {
    EXPECT_TRUE(desktop.prepared().empty());
    panel.orderFront();
    panel.orderOut();
    panel.orderFront();
    EXPECT_EQ(desktop.prepared(), std::vector{window()});
}

TEST_F(FloatingPanelWindowTest, ShowingTakesNoKeyboard) {
    panel.orderFront();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    EXPECT_TRUE(panel.isVisible());
    EXPECT_FALSE(desktop.keyboardOwner());
    EXPECT_EQ(desktop.pressListeners(), 0U);
}

TEST_F(FloatingPanelWindowTest, TakesTheKeyboardOnceItIsOnTheScreen) {
    panel.orderFront();
    panel.makeKey();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    QApplication::processEvents();
    EXPECT_EQ(desktop.keyboardOwner(), window());
}

TEST_F(FloatingPanelWindowTest, GivesTheKeyboardBackWhenItGoes) {
    showWithKeyboard();
    EXPECT_EQ(desktop.keyboardOwner(), window());
    panel.orderOut();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(desktop.keyboardOwner());
    EXPECT_EQ(resigns, 0) << "being hidden is no resigning";
    EXPECT_EQ(desktop.pressListeners(), 0U);
}

TEST_F(FloatingPanelWindowTest, APanelThatNeverHadTheKeyboardGivesNoneBack) {
    panel.orderFront();
    desktop.takeKeyboard(42);
    panel.orderOut();
    EXPECT_EQ(desktop.keyboardOwner(), 42U);
}

TEST_F(FloatingPanelWindowTest, EscapeAnywhereInsideIsTold) {
    showWithKeyboard();
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(escapes, 1);
    QTest::keyClicks(field, QStringLiteral("typed"));
    EXPECT_EQ(field->text(), QStringLiteral("typed"));
    EXPECT_EQ(escapes, 1);
}

TEST_F(FloatingPanelWindowTest, EscapeIsOneWhateverModifierIsLocked) {
    showWithKeyboard();
    QTest::keyClick(field, Qt::Key_Escape, Qt::MetaModifier);
    EXPECT_EQ(escapes, 1);
}

TEST_F(FloatingPanelWindowTest, IsTakenAwayByTheDesktopWhenItGoes) {
    panel.orderOut();
    EXPECT_TRUE(desktop.takenAway().empty());
    panel.orderFront();
    panel.orderOut();
    EXPECT_EQ(desktop.takenAway(), std::vector{window()});
}

TEST_F(FloatingPanelWindowTest, LosingTheKeyboardIsToldOnce) {
    showWithKeyboard();
    QWidget other;
    other.show();
    ASSERT_TRUE(makeActive(other));
    EXPECT_EQ(resigns, 1);
    desktop.pressElsewhere();
    EXPECT_EQ(resigns, 1);
}

TEST_F(FloatingPanelWindowTest, APressElsewhereIsToldWhileItHasTheKeyboard) {
    panel.orderFront();
    desktop.pressElsewhere();
    EXPECT_EQ(resigns, 0);
    showWithKeyboard();
    desktop.pressElsewhere();
    EXPECT_EQ(resigns, 1);
}

TEST_F(FloatingPanelWindowTest, APressOnTheShadowIsAPressElsewhere) {
    showWithKeyboard();
    QTest::mousePress(&panel, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(resigns, 1);
}

TEST_F(FloatingPanelWindowTest, APressElsewhereGivesTheKeyboardBackAfterTheWindowManagerHadItsTurn) {
    closeOnResign();
    showWithKeyboard();
    desktop.pressElsewhere();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(desktop.keyboardOwner(), window());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !desktop.keyboardOwner(); }));
}

TEST_F(FloatingPanelWindowTest, APressOnTheShadowGivesTheKeyboardBack) {
    closeOnResign();
    showWithKeyboard();
    QTest::mousePress(&panel, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !desktop.keyboardOwner(); }));
}

TEST_F(FloatingPanelWindowTest, ShownAgainAtOnceItHasGivenTheKeyboardBack) {
    closeOnResign();
    showWithKeyboard();
    desktop.pressElsewhere();
    panel.orderFront();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    EXPECT_FALSE(desktop.keyboardOwner());
}

TEST_F(FloatingPanelWindowTest, GivesTheKeyboardBackOnlyOnce) {
    showWithKeyboard();
    panel.orderOut();
    desktop.takeKeyboard(window());
    panel.orderOut();
    panel.orderFront();
    EXPECT_EQ(desktop.keyboardOwner(), window());
}

TEST_F(FloatingPanelWindowTest, ItsOwnMenuIsNotElsewhere) {
    showWithKeyboard();
    QMenu menu(&panel);
    menu.addAction(QStringLiteral("Pin"));
    menu.popup(QPoint(150, 150));
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    desktop.pressElsewhere();
    EXPECT_EQ(resigns, 0);
    menu.close();
    desktop.pressElsewhere();
    EXPECT_EQ(resigns, 1);
}

TEST_F(FloatingPanelWindowTest, KeyboardLostUnderItsOwnMenuIsToldWhenTheMenuCloses) {
    QWidget other;
    other.show();
    showWithKeyboard();
    QMenu menu(&panel);
    menu.addAction(QStringLiteral("Pin"));
    menu.popup(QPoint(150, 150));
    // While a menu is open, Qt leaves aside what the window system tells of windows.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(&other);
    QT_WARNING_POP
    EXPECT_EQ(resigns, 0);
    menu.close();
    QApplication::processEvents();
    EXPECT_EQ(resigns, 1);
}

TEST_F(FloatingPanelWindowTest, CanBeShownWithTheKeyboardAgain) {
    showWithKeyboard();
    panel.orderOut();
    showWithKeyboard();
    EXPECT_EQ(desktop.keyboardOwner(), window());
    desktop.pressElsewhere();
    EXPECT_EQ(resigns, 1);
}

struct FadingPanelTest : FloatingPanelWindowTest {
    bool isFading() const { return fade().state() == QAbstractAnimation::Running; }
    QPropertyAnimation& fade() const { return *panel.findChild<QPropertyAnimation*>(); }
    /// So long after the fade began.
    void at(std::chrono::milliseconds time) { fade().setCurrentTime(static_cast<int>(time.count())); }
};

TEST_F(FadingPanelTest, FadesInFromNothing) {
    panel.fadeIn(Seconds(0.15));
    EXPECT_TRUE(panel.isVisible());
    EXPECT_DOUBLE_EQ(panel.windowOpacity(), 0);
    at(75ms);
    EXPECT_NEAR(panel.windowOpacity(), 0.5, 0.01);
    EXPECT_TRUE(isFading());
    at(150ms);
    EXPECT_DOUBLE_EQ(panel.windowOpacity(), 1);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_FALSE(isFading());
}

TEST_F(FadingPanelTest, FadesOutAndIsTakenAwayAtTheEnd) {
    panel.orderFront();
    panel.fadeOut(Seconds(0.4));
    EXPECT_DOUBLE_EQ(panel.windowOpacity(), 1);
    at(200ms);
    EXPECT_NEAR(panel.windowOpacity(), 0.5, 0.01);
    at(399ms);
    EXPECT_TRUE(panel.isVisible());
    at(400ms);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(desktop.takenAway(), std::vector{window()});
    EXPECT_FALSE(isFading());
}

TEST_F(FadingPanelTest, NothingFadesOutThatIsNotShown) {
    panel.fadeOut(Seconds(0.4));
    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(isFading());
}

TEST_F(FadingPanelTest, ShownAgainWhileItFadesOutItBeginsFromNothing) {
    panel.orderFront();
    panel.fadeOut(Seconds(0.4));
    at(100ms);
    panel.fadeIn(Seconds(0.15));
    EXPECT_DOUBLE_EQ(panel.windowOpacity(), 0);
    at(150ms);
    EXPECT_DOUBLE_EQ(panel.windowOpacity(), 1);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_TRUE(desktop.takenAway().empty());
}

TEST_F(FadingPanelTest, FadesOutFromWhereItsFadingInHasCome) {
    panel.fadeIn(Seconds(0.15));
    at(75ms);
    const double come = panel.windowOpacity();
    panel.fadeOut(Seconds(0.4));
    EXPECT_DOUBLE_EQ(panel.windowOpacity(), come);
    at(400ms);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(FadingPanelTest, IsOpaqueWhenItIsShownWithoutFading) {
    panel.orderFront();
    panel.fadeOut(Seconds(0.4));
    at(200ms);
    panel.orderFront();
    EXPECT_DOUBLE_EQ(panel.windowOpacity(), 1);
    EXPECT_FALSE(isFading());
}

TEST_F(FadingPanelTest, BeingTakenAwayEndsEveryFade) {
    panel.fadeIn(Seconds(0.15));
    panel.orderOut();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(isFading());
    panel.orderFront();
    panel.fadeOut(Seconds(0.4));
    panel.orderOut();
    EXPECT_FALSE(isFading());
    EXPECT_EQ(desktop.takenAway().size(), 2U);
}

TEST_F(FadingPanelTest, WithoutBlendingItIsOpaqueAtOnceAndGoesAtTheEnd) {
    desktop.setComposited(false);
    panel.fadeIn(Seconds(0.15));
    EXPECT_TRUE(panel.isVisible());
    EXPECT_DOUBLE_EQ(panel.windowOpacity(), 1);
    EXPECT_FALSE(isFading());
    panel.fadeOut(Seconds(0.4));
    at(399ms);
    EXPECT_TRUE(panel.isVisible());
    at(400ms);
    EXPECT_FALSE(panel.isVisible());
}

} // namespace
} // namespace quillon
