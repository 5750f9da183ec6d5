#include <quillon/app/views/practice/answer_input.h>

#include <quillon/app/platform/fake/fake_desktop.h>
#include <quillon/kit/shortcut/key_code.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QPushButton>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum Place : std::uint32_t { letterS = 39, keyTab = 23, keyReturn = 36, keyEscape = 9, keyF4 = 70 };

class AnswerInputTest : public testing::Test {
  protected:
    AnswerInputTest() {
        const auto special = [](SpecialKey key) {
            return KeyStroke{.characters = {}, .keyCode = KeyCodes::of(key).value_or(-1)};
        };
        desktop.keyReading.define(letterS, {.characters = "s", .keyCode = 1});
        desktop.keyReading.define(keyTab, special(SpecialKey::tab));
        desktop.keyReading.define(keyReturn, special(SpecialKey::returnKey));
        desktop.keyReading.define(keyEscape, special(SpecialKey::escape));
        desktop.keyReading.define(keyF4, special(SpecialKey::f4));
        QObject::connect(&input, &AnswerInput::answered, [this](const KeyStroke& stroke) {
            answers.push_back(stroke.modifiers.glyphs() + stroke.characters);
            if (isAnsweredOnce)
                input.setWaiting(false);
        });
        QObject::connect(&button, &QPushButton::clicked, [this] { ++clicks; });
        window.show();
    }

    /// A question waits in the window in front.
    void ask() {
        ASSERT_TRUE(makeActive(window));
        button.setFocus();
        input.start();
        input.setWaiting(true);
    }
    static QKeyEvent
    event(QEvent::Type type, std::uint32_t place, int key, Modifiers held = {}, bool isRepeat = false) {
        Qt::KeyboardModifiers qt;
        qt.setFlag(Qt::ControlModifier, held.contains(Modifiers::control));
        qt.setFlag(Qt::AltModifier, held.contains(Modifiers::option));
        return {type, key, qt, place, 0, FakeKeyReading::stateOf(held), {}, isRepeat};
    }
    void press(std::uint32_t place, int key, Modifiers held = {}, bool isRepeat = false) {
        QKeyEvent press = event(QEvent::KeyPress, place, key, held, isRepeat);
        QApplication::sendEvent(&button, &press);
    }
    void release(std::uint32_t place, int key, Modifiers held = {}, bool isRepeat = false) {
        QKeyEvent release = event(QEvent::KeyRelease, place, key, held, isRepeat);
        QApplication::sendEvent(&button, &release);
    }
    void tap(std::uint32_t place, int key, Modifiers held = {}) {
        press(place, key, held);
        release(place, key, held);
    }
    void leaveWindow() {
        QWidget other;
        other.show();
        ASSERT_TRUE(makeActive(other));
        EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    }

    FakeDesktop desktop;
    QWidget window;
    QPushButton button{&window};
    AnswerInput input{window, {desktop.keyReading, desktop.keyboardGrab, desktop.timers}};
    std::vector<std::string> answers;
    bool isAnsweredOnce = false;
    int clicks = 0;
};

TEST_F(AnswerInputTest, APressIsReadByItsPlaceAndWhatIsHeld) {
    ask();
    tap(letterS, Qt::Key_Y, Modifiers::control);
    EXPECT_THAT(answers, ElementsAre("⌃s"));
}

TEST_F(AnswerInputTest, PressesAnswerOnlyWhileAQuestionWaits) {
    ask();
    input.setWaiting(false);
    tap(letterS, Qt::Key_S, Modifiers::control);
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(AnswerInputTest, AnAnswerIsTakenFromShortcuts) {
    ask();
    QKeyEvent early = event(QEvent::ShortcutOverride, letterS, Qt::Key_S, Modifiers::control);
    early.ignore();
    QApplication::sendEvent(&button, &early);
    EXPECT_TRUE(early.isAccepted());
    input.setWaiting(false);
    early.ignore();
    QApplication::sendEvent(&button, &early);
    EXPECT_FALSE(early.isAccepted());
}

TEST_F(AnswerInputTest, KeysOfTheWindowAndUnknownOnesPass) {
    ask();
    tap(keyTab, Qt::Key_Tab);
    tap(keyReturn, Qt::Key_Return);
    tap(37, Qt::Key_Control, Modifiers::control);
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(AnswerInputTest, HeldKeysAnswerOnceAndPressNoButton) {
    ask();
    press(letterS, Qt::Key_S, Modifiers::control);
    press(letterS, Qt::Key_S, Modifiers::control, true);
    EXPECT_THAT(answers, ElementsAre("⌃s"));
    input.setWaiting(false);
    press(keyReturn, Qt::Key_Return, {}, true);
    press(65, Qt::Key_Space, {}, true);
    EXPECT_EQ(clicks, 0);
}

TEST_F(AnswerInputTest, TheKeyboardIsTakenWhileAQuestionWaits) {
    ASSERT_TRUE(makeActive(window));
    input.start();
    EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    input.setWaiting(true);
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
    EXPECT_EQ(input.grip(), Grip::allKeys);
    input.setWaiting(false);
    EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    EXPECT_EQ(input.grip(), Grip::someKeys);
}

TEST_F(AnswerInputTest, ItIsKeptUntilTheAnsweringKeyIsUp) {
    isAnsweredOnce = true;
    ask();
    press(keyF4, Qt::Key_F4, Modifiers::option);
    EXPECT_TRUE(desktop.keyboardGrab.isTaken()) << "the key's repetitions would close the window";
    release(keyF4, Qt::Key_F4, Modifiers::option, true);
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
    release(keyF4, Qt::Key_F4, Modifiers::option);
    EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    EXPECT_EQ(answers.size(), 1U);
}

TEST_F(AnswerInputTest, ItIsLetGoWithTheFocusAndTakenAgain) {
    ask();
    leaveWindow();
    EXPECT_EQ(input.grip(), Grip::someKeys);
    ASSERT_TRUE(makeActive(window));
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
}

TEST_F(AnswerInputTest, TheFocusIsLostWithAnAnsweringKeyDown) {
    isAnsweredOnce = true;
    ask();
    press(keyF4, Qt::Key_F4, Modifiers::option);
    leaveWindow();
    ASSERT_TRUE(makeActive(window));
    EXPECT_FALSE(desktop.keyboardGrab.isWanted()) << "its release was never seen";
}

TEST_F(AnswerInputTest, ItIsLetGoWhenTheViewGoes) {
    ask();
    input.stop();
    EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    EXPECT_EQ(desktop.keyReading.followers(), 0U);
    tap(letterS, Qt::Key_S, Modifiers::control);
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(AnswerInputTest, HoldingEscapeLetsGo) {
    ask();
    press(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(0.9));
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
    press(keyEscape, Qt::Key_Escape, {}, true);
    desktop.timers.advance(Seconds(0.2));
    EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    EXPECT_EQ(input.grip(), Grip::letGo);
    release(keyEscape, Qt::Key_Escape);
    input.setWaiting(false);
    input.setWaiting(true);
    EXPECT_FALSE(desktop.keyboardGrab.isWanted()) << "at the next question";
    tap(letterS, Qt::Key_S, Modifiers::control);
    EXPECT_THAT(answers, ElementsAre("⌃s")) << "what still comes is an answer";
}

TEST_F(AnswerInputTest, ATappedEscapeDoesNothing) {
    ask();
    tap(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(3));
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
    EXPECT_THAT(answers, IsEmpty());
    tap(keyEscape, Qt::Key_Escape, Modifiers::control);
    EXPECT_THAT(answers, ElementsAre("⌃")) << "with Ctrl it may be an answer";
}

TEST_F(AnswerInputTest, WhatWasLetGoIsTakenWhenTheWindowIsComeBackTo) {
    ask();
    press(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(1.1));
    leaveWindow();
    ASSERT_TRUE(makeActive(window));
    EXPECT_EQ(input.grip(), Grip::allKeys);
}

TEST_F(AnswerInputTest, WhatWasLetGoIsTakenWithTheNextRound) {
    ask();
    press(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(1.1));
    input.beginRound();
    EXPECT_EQ(input.grip(), Grip::allKeys);
}

TEST_F(AnswerInputTest, WhoIsGoneLeavesTheKeyboardToTheScreenLocker) {
    ask();
    desktop.timers.advance(Seconds(20));
    press(keyTab, Qt::Key_Tab);
    desktop.timers.advance(Seconds(20));
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
    desktop.timers.advance(Seconds(11));
    EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    EXPECT_EQ(input.grip(), Grip::someKeys);
    press(37, Qt::Key_Control, Modifiers::control);
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
}

TEST_F(AnswerInputTest, AMenuHasTheKeyboardWhileItIsOpen) {
    ask();
    QMenu menu(&window);
    menu.addAction(QStringLiteral("One"));
    menu.popup(QPoint());
    QApplication::processEvents();
    EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    menu.close();
    QApplication::processEvents();
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
    EXPECT_EQ(desktop.keyboardGrab.asked(), 2) << "the toolkit gave it back for the whole program";
}

TEST_F(AnswerInputTest, WhileSomethingElseHasTheKeyboardItIsNotSaidToBeTaken) {
    desktop.keyboardGrab.keep();
    ask();
    EXPECT_EQ(input.grip(), Grip::someKeys);
    desktop.keyboardGrab.give();
    EXPECT_EQ(input.grip(), Grip::allKeys);
}

TEST_F(AnswerInputTest, ADesktopThatCannotLeavesTheKeysThatCome) {
    desktop.keyboardGrab.disable();
    ask();
    EXPECT_EQ(input.grip(), Grip::someKeys);
    press(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(2));
    EXPECT_EQ(input.grip(), Grip::someKeys) << "there is nothing to let go of";
    tap(letterS, Qt::Key_S, Modifiers::control);
    EXPECT_THAT(answers, ElementsAre("⌃s"));
}

TEST_F(AnswerInputTest, ADesktopThatDoesNotTellItsKeysIsKnown) {
    desktop.keyReading.disable();
    ask();
    EXPECT_FALSE(input.canRead());
    tap(letterS, Qt::Key_S, Modifiers::control);
    EXPECT_THAT(answers, IsEmpty());
}

} // namespace
} // namespace quillon
