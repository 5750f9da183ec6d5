#include <quillon/app/views/practice/answer_input.h>

#include <quillon/app/platform/fake/fake_desktop.h>
#include <quillon/kit/shortcut/key_code.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTest>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum Place : std::uint32_t {
    keyOfClose = 0,
    letterS = 39,
    keyTab = 23,
    keyReturn = 36,
    keyEscape = 9,
    keyF4 = 70
};

/// A button that remembers which keys were pressed on it.
struct KeyLog : QPushButton {
    using QPushButton::QPushButton;
    bool event(QEvent* event) override {
        if (event->type() == QEvent::KeyPress)
            keys.push_back(static_cast<QKeyEvent*>(event)->key());
        return QPushButton::event(event);
    }
    std::vector<int> keys;
};

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
        desktop.keyReading.define(keyOfClose, {.characters = "w", .keyCode = 13});
        QObject::connect(&input, &AnswerInput::answered, [this](const KeyStroke& stroke) {
            answers.push_back(stroke.modifiers.glyphs() + stroke.characters);
            if (isAnsweredOnce)
                input.setQuestion(Question::answered);
        });
        QObject::connect(&button, &QPushButton::clicked, [this] { ++clicks; });
        QObject::connect(&closing, &QShortcut::activated, [this] { ++closings; });
        window.show();
    }

    /// A question waits in the window in front.
    void ask() {
        ASSERT_TRUE(makeActive(window));
        button.setFocus();
        input.start();
        input.setQuestion(Question::waiting);
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
    /// As the window system tells of ⌃W: to shortcuts first. Such presses have no place.
    void pressClose(bool isRepeat = false) {
        QTest::simulateEvent(&button, true, Qt::Key_W, Qt::ControlModifier, {}, isRepeat);
    }
    void releaseClose() { QTest::simulateEvent(&button, false, Qt::Key_W, Qt::ControlModifier, {}, false); }
    /// As the toolkit tells it when it does not notice in time that a key repeats.
    void repeatUnmarked(std::uint32_t place, int key, Modifiers held = {}) {
        ++time;
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent part = event(type, place, key, held);
            part.setTimestamp(time);
            QApplication::sendEvent(&button, &part);
        }
    }
    void leaveWindow() {
        QWidget other;
        other.show();
        ASSERT_TRUE(makeActive(other));
        EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    }

    FakeDesktop desktop;
    QWidget window;
    KeyLog button{&window};
    QShortcut closing{QKeySequence(Qt::CTRL | Qt::Key_W), &window};
    AnswerInput input{window, {desktop.keyReading, desktop.keyboardGrab, desktop.timers}};
    std::vector<std::string> answers;
    bool isAnsweredOnce = false;
    int clicks = 0;
    int closings = 0;
    quint64 time = 1000; ///< of events that have one
};

TEST_F(AnswerInputTest, APressIsReadByItsPlaceAndWhatIsHeld) {
    ask();
    tap(letterS, Qt::Key_Y, Modifiers::control);
    EXPECT_THAT(answers, ElementsAre("⌃s"));
}

TEST_F(AnswerInputTest, PressesAnswerOnlyWhileAQuestionWaits) {
    ask();
    for (const Question question : {Question::answered, Question::none}) {
        input.setQuestion(question);
        tap(letterS, Qt::Key_S, Modifiers::control);
        EXPECT_THAT(answers, IsEmpty());
    }
}

TEST_F(AnswerInputTest, AnAnswerIsTakenFromShortcuts) {
    ask();
    QKeyEvent early = event(QEvent::ShortcutOverride, letterS, Qt::Key_S, Modifiers::control);
    early.ignore();
    QApplication::sendEvent(&button, &early);
    EXPECT_TRUE(early.isAccepted());
    input.setQuestion(Question::none);
    early.ignore();
    QApplication::sendEvent(&button, &early);
    EXPECT_FALSE(early.isAccepted());
}

TEST_F(AnswerInputTest, TheAnsweringKeyIsNoShortcutUntilItIsUp) {
    ask();
    pressClose();
    input.setQuestion(Question::none);
    pressClose(true);
    EXPECT_EQ(closings, 0) << "held past the next question, or the last";
    releaseClose();
    pressClose();
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(answers.size(), 1U);
}

TEST_F(AnswerInputTest, PressesWhileTheAnswerIsShownAreIgnored) {
    ask();
    input.setQuestion(Question::answered);
    pressClose();
    pressClose(true);
    releaseClose();
    EXPECT_EQ(closings, 0);
    EXPECT_THAT(answers, IsEmpty());
    press(letterS, Qt::Key_S);
    EXPECT_THAT(button.keys, IsEmpty());
    press(keyTab, Qt::Key_Tab);
    press(keyReturn, Qt::Key_Return);
    press(keyEscape, Qt::Key_Escape);
    EXPECT_THAT(button.keys, ElementsAre(Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape));
    button.keys.clear();
    input.setQuestion(Question::none);
    press(letterS, Qt::Key_S);
    EXPECT_THAT(button.keys, ElementsAre(Qt::Key_S));
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
    input.setQuestion(Question::answered);
    press(keyReturn, Qt::Key_Return, {}, true);
    press(65, Qt::Key_Space, {}, true);
    EXPECT_EQ(clicks, 0);
}

TEST_F(AnswerInputTest, ARepetitionIsOneWithoutAMark) {
    ask();
    press(letterS, Qt::Key_S, Modifiers::control);
    input.setQuestion(Question::waiting);
    repeatUnmarked(letterS, Qt::Key_S, Modifiers::control);
    EXPECT_THAT(answers, ElementsAre("⌃s")) << "of the next question";
    input.setQuestion(Question::none);
    button.keys.clear();
    repeatUnmarked(letterS, Qt::Key_S, Modifiers::control);
    EXPECT_THAT(button.keys, IsEmpty());
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
    repeatUnmarked(keyReturn, Qt::Key_Return);
    EXPECT_THAT(button.keys, IsEmpty());
}

TEST_F(AnswerInputTest, HoldingEscapeLetsGoWithoutMarksToo) {
    ask();
    press(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(0.7));
    repeatUnmarked(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(0.2));
    repeatUnmarked(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(0.2));
    EXPECT_EQ(input.grip(), Grip::letGo);
}

TEST_F(AnswerInputTest, TheKeyboardIsTakenWhileAQuestionWaits) {
    ASSERT_TRUE(makeActive(window));
    input.start();
    EXPECT_FALSE(desktop.keyboardGrab.isWanted());
    input.setQuestion(Question::waiting);
    EXPECT_TRUE(desktop.keyboardGrab.isTaken());
    EXPECT_EQ(input.grip(), Grip::allKeys);
    input.setQuestion(Question::none);
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
    input.setQuestion(Question::answered);
    input.setQuestion(Question::waiting);
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

TEST_F(AnswerInputTest, WithTheNextRoundItIsNotSaidToBeLetGoOf) {
    ask();
    press(keyEscape, Qt::Key_Escape);
    desktop.timers.advance(Seconds(1.1));
    std::vector<Grip> told;
    QObject::connect(&input, &AnswerInput::gripChanged, [&] { told.push_back(input.grip()); });
    desktop.keyboardGrab.keep();
    input.beginRound();
    EXPECT_THAT(told, ElementsAre(Grip::someKeys)) << "until the desktop gives it";
    desktop.keyboardGrab.give();
    EXPECT_THAT(told, ElementsAre(Grip::someKeys, Grip::allKeys));
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
