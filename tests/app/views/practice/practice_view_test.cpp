#include "practice_fixture.h"

#include <quillon/app/views/practice/keyboard_view.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/tests/app/views/support/read_app.h>

#include <QKeyEvent>
#include <QShortcut>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;

TEST_F(PracticeViewTest, SaysHowToBeginWithoutAnyApp) {
    open();
    EXPECT_THAT(
        texts(),
        ElementsAre(
            u"No apps to practise yet"_s, u"Hold ⌘ in an app first, so Quillon can read its shortcuts."_s));
    EXPECT_TRUE(buttons().isEmpty());
    desk.model.setTrigger(TriggerKey::option);
    EXPECT_THAT(texts(), Contains(u"Hold ⌥ in an app first, so Quillon can read its shortcuts."_s));
    desk.settings.setKeyLabels(KeyLabels::names);
    EXPECT_THAT(texts(), Contains(u"Hold Alt in an app first, so Quillon can read its shortcuts."_s));
}

TEST_F(PracticeViewTest, WhatWasPressedIsNamedWhereKeysAre) {
    desk.settings.setKeyLabels(KeyLabels::names);
    readWriter();
    open();
    press(Qt::Key_Return);
    press(Qt::Key_X, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(texts(), Contains(u"You pressed Ctrl Shift X"_s));
}

TEST_F(PracticeViewTest, NoticesTheFirstApp) {
    open();
    readWriter();
    EXPECT_THAT(texts(), ElementsAre(u"Practice"_s, u"Press New Round."_s));
    EXPECT_THAT(buttons(), ElementsAre(u"New Round"_s));
    EXPECT_EQ(view->appID(), "org.example.Writer");
}

TEST_F(PracticeViewTest, OpensForTheApplicationInFrontAndListsAllByName) {
    read(3, "Zebra", menusWith({command("Save", "S")}));
    readWriter();
    open();
    EXPECT_EQ(view->appID(), "org.example.Writer");
    const auto& apps = *view->findChild<QComboBox*>();
    EXPECT_EQ(apps.count(), 2);
    EXPECT_EQ(apps.currentText(), u"Writer"_s);
    EXPECT_EQ(apps.itemText(1), u"Zebra"_s);
    EXPECT_FALSE(apps.accessibleName().isEmpty());
}

TEST_F(PracticeViewTest, ARightAnswerIsSaidAndCounted) {
    readWriter();
    open();
    press(Qt::Key_Return); // New Round
    EXPECT_THAT(
        texts(), ElementsAre(
                     u"Practice"_s, u"1 of 2"_s, u"File"_s, u"Save"_s, u"Press the shortcut"_s,
                     u"Every key comes here while a question waits. Hold Esc to let go."_s));
    EXPECT_THAT(buttons(), ElementsAre(u"Show Answer"_s));
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(texts(), Contains(u"Right"_s));
    EXPECT_THAT(buttons(), ElementsAre(u"Next"_s));
    EXPECT_EQ(record("File › Save").practiceRight, 1);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(record("File › Save").practiceRight, 1) << "while the answer is shown";
}

TEST_F(PracticeViewTest, AnAnswerThatIsShownLeavesNoKeyToShortcuts) {
    readWriter();
    open();
    desk.desktop.keyReading.define(0, {.characters = "w", .keyCode = 13});
    int closings = 0;
    const QShortcut closing(QKeySequence(Qt::CTRL | Qt::Key_W), &window, [&] { ++closings; });
    press(Qt::Key_Return);
    const auto pressClose = [] {
        QTest::simulateEvent(QApplication::focusWidget(), true, Qt::Key_W, Qt::ControlModifier, {}, false);
        QTest::simulateEvent(QApplication::focusWidget(), false, Qt::Key_W, Qt::ControlModifier, {}, false);
    };
    pressClose();
    pressClose();
    EXPECT_EQ(record("File › Save").practiceWrong, 1);
    EXPECT_EQ(closings, 0);
    press(Qt::Key_Return);
    press(Qt::Key_Q, Qt::ControlModifier);
    pressClose();
    EXPECT_EQ(closings, 0);
    press(Qt::Key_Return);
    ASSERT_TRUE(view->round().isOver());
    pressClose();
    EXPECT_EQ(closings, 1) << "with the results";
}

TEST_F(PracticeViewTest, AWrongAnswerTellsWhatWasPressedAndComesAgain) {
    readWriter();
    open();
    press(Qt::Key_Return);
    press(Qt::Key_X, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(texts(), Contains(u"You pressed ⌃⇧X"_s));
    EXPECT_EQ(record("File › Save").practiceWrong, 1);
    press(Qt::Key_Return); // Next
    EXPECT_THAT(texts(), Contains(u"2 of 2"_s));
    press(Qt::Key_Return);
    EXPECT_TRUE(view->round().isWaiting()) << "a Return too many gives no answer away";
    showAnswer();
    EXPECT_EQ(record("File › Quit").practiceWrong, 1);
    EXPECT_THAT(buttons(), ElementsAre(u"See Results"_s));
    press(Qt::Key_Return);
    EXPECT_THAT(
        texts(),
        ElementsAre(
            u"Practice"_s, u"0 of 2 right"_s, u"These come up more next time:"_s, u"Save"_s, u"Quit"_s));
    EXPECT_THAT(buttons(), ElementsAre(u"Another Round"_s));
    press(Qt::Key_Return);
    EXPECT_THAT(texts(), Contains(u"1 of 2"_s));
}

TEST_F(PracticeViewTest, ACleanRoundIsSaid) {
    readWriter();
    open();
    press(Qt::Key_Return);
    press(Qt::Key_S, Qt::ControlModifier);
    press(Qt::Key_Return);
    press(Qt::Key_Q, Qt::ControlModifier);
    press(Qt::Key_Return);
    EXPECT_THAT(texts(), Contains(u"2 of 2 right"_s));
    EXPECT_THAT(texts(), Contains(u"A clean round. The next one leans on whatever you click next."_s));
}

TEST_F(PracticeViewTest, ModifiersAndKeysOfTheWindowAreNoAnswers) {
    readWriter();
    open();
    press(Qt::Key_Return);
    press(Qt::Key_Control, Qt::ControlModifier);
    press(Qt::Key_Tab);
    press(Qt::Key_Escape);
    EXPECT_TRUE(view->round().isWaiting());
}

TEST_F(PracticeViewTest, TheAnswerIsShownByTheKeyboardToo) {
    readWriter();
    open();
    press(Qt::Key_Return);
    QWidget* const question = QApplication::focusWidget();
    ASSERT_TRUE(question);
    EXPECT_EQ(question->accessibleName(), u"Save, in File. Press the shortcut"_s);
    press(Qt::Key_Tab);
    const auto* const button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(), u"Show Answer"_s);
    press(Qt::Key_Return);
    EXPECT_THAT(buttons(), ElementsAre(u"Next"_s));
    EXPECT_EQ(record("File › Save").practiceWrong, 1);
    EXPECT_EQ(QApplication::focusWidget()->accessibleDescription(), u"⌃S"_s);
}

TEST_F(PracticeViewTest, TheKeyboardLightsUpNoSoonerThanTheAnswer) {
    readWriter();
    open();
    press(Qt::Key_Return);
    const auto& keyboard = *view->findChild<KeyboardView*>();
    EXPECT_TRUE(keyboard.lit().empty());
    EXPECT_EQ(keyboard.accessibleName(), u"Keyboard"_s);
    press(Qt::Key_X, Qt::AltModifier);
    EXPECT_EQ(keyboard.accessibleName(), u"Keyboard, lit: ⌃S"_s);
    EXPECT_EQ(keyboard.lit().size(), 2U);
    EXPECT_EQ(keyboard.marked().size(), 2U);
    press(Qt::Key_Return);
    EXPECT_TRUE(keyboard.lit().empty());
    EXPECT_TRUE(keyboard.marked().empty());
}

TEST_F(PracticeViewTest, SaysWhoHasTheKeyboard) {
    readWriter();
    open();
    press(Qt::Key_Return);
    EXPECT_TRUE(label(u"Every key comes here while a question waits. Hold Esc to let go."_s));
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(QApplication::focusWidget(), &escape);
    desk.desktop.timers.advance(Seconds(1.1));
    EXPECT_TRUE(label(u"The keyboard is free: your desktop’s own keys work again."_s));
}

TEST_F(PracticeViewTest, SaysWhereKeysAreNotTold) {
    desk.desktop.keyReading.disable();
    readWriter();
    open();
    press(Qt::Key_Return);
    EXPECT_TRUE(label(u"This desktop does not tell Quillon which keys are pressed."_s));
}

TEST_F(PracticeViewTest, OpensForTheApplicationThatWasAskedFor) {
    read(3, "Zebra", menusWith({command("Save", "S")}));
    readWriter();
    desk.model.openPractice("org.example.Zebra");
    open();
    EXPECT_EQ(view->appID(), "org.example.Zebra");
    EXPECT_EQ(view->findChild<QComboBox*>()->currentText(), u"Zebra"_s);
}

TEST_F(PracticeViewTest, AnotherApplicationThatIsAskedForEndsTheRound) {
    read(3, "Zebra", menusWith({command("Save", "S")}));
    readWriter();
    open();
    press(Qt::Key_Return);
    press(Qt::Key_S, Qt::ControlModifier);
    desk.model.openPractice("org.example.Writer");
    EXPECT_TRUE(view->round().isDrawn()) << "the round's own";
    desk.model.openPractice("org.example.Unread");
    EXPECT_TRUE(view->round().isDrawn()) << "one that there is nothing to practise of";
    desk.model.openPractice("org.example.Zebra");
    EXPECT_EQ(view->appID(), "org.example.Zebra");
    EXPECT_FALSE(view->round().isDrawn());
    EXPECT_EQ(record("File › Save").practiceRight, 1);
    EXPECT_FALSE(desk.desktop.keyboardGrab.isWanted());
}

TEST_F(PracticeViewTest, ASheetThatArrivesLeavesTheFocusWhereItIs) {
    readWriter();
    open();
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    const QWidget* const button = QApplication::focusWidget();
    read(3, "Zebra", menusWith({command("Save", "S")}));
    EXPECT_EQ(QApplication::focusWidget(), button);
    EXPECT_EQ(view->findChild<QComboBox*>()->count(), 2);
}

TEST_F(PracticeViewTest, AnAppWithoutPractisableShortcutsIsSaidSo) {
    readWriter();
    view = new PracticeView(
        desk.model, desk.themes, keyboard(),
        [](const auto&, const auto&, const auto&) { return std::vector<MenuEntry>(); }, &window);
    window.show();
    QApplication::processEvents();
    QTest::mouseClick(view->findChild<QAbstractButton*>(), Qt::LeftButton);
    EXPECT_THAT(texts(), Contains(u"Writer has no shortcuts to practise."_s));
}

TEST_F(PracticeViewTest, ReturnGoesOnWhereverElseTheKeyboardIs) {
    readWriter();
    open();
    press(Qt::Key_Return);
    appPicker().setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(view->round().isWaiting()) << "it gives no answer away";
    press(Qt::Key_S, Qt::ControlModifier);
    appPicker().setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(view->round().index(), 1U);
    press(Qt::Key_S, Qt::ControlModifier);
    appPicker().setFocus();
    press(Qt::Key_Enter);
    EXPECT_TRUE(view->round().isOver());
    appPicker().setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(view->round().isWaiting());
    EXPECT_EQ(view->round().index(), 0U);
}

TEST_F(PracticeViewTest, ApplicationsAreSortedAsPeopleDo) {
    read(3, "App 10", menusWith({command("Save", "S")}));
    read(4, "geany", menusWith({command("Save", "S")}));
    read(5, "GIMP", menusWith({command("Save", "S")}));
    read(6, "App 9", menusWith({command("Save", "S")}));
    open();
    const auto& apps = *view->findChild<QComboBox*>();
    QStringList names;
    for (int index = 0; index < apps.count(); ++index)
        names.append(apps.itemText(index));
    EXPECT_THAT(names, ElementsAre(u"App 9"_s, u"App 10"_s, u"geany"_s, u"GIMP"_s));
}

TEST_F(PracticeViewTest, AnAppWithoutANameIsCalledByItsIdentifier) {
    readApp(
        desk, {.bundleID = "org.example.nameless",
               .appName = {},
               .entries = {{{"File", "Save"}, {Modifiers::control, Key::character("S")}, true}}});
    view = new PracticeView(
        desk.model, desk.themes, keyboard(),
        [](const auto&, const auto&, const auto&) { return std::vector<MenuEntry>(); }, &window);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(view->findChild<QComboBox*>()->itemText(0), u"org.example.nameless"_s);
    QTest::mouseClick(view->findChild<QAbstractButton*>(), Qt::LeftButton);
    EXPECT_THAT(texts(), Contains(u"org.example.nameless has no shortcuts to practise."_s));
}

TEST_F(PracticeViewTest, ErasingEverythingLeavesNothingToPractise) {
    readWriter();
    open();
    press(Qt::Key_Return);
    desk.model.eraseEverything();
    EXPECT_THAT(texts(), Contains(u"No apps to practise yet"_s));
    EXPECT_FALSE(view->round().isDrawn());
}

TEST(PracticeDrawTest, DrawsTenOfTheSample) {
    const AppSheet sheet = SampleMenus::sheet();
    EXPECT_EQ(PracticeView::drawByChance()(sheet, {}, {}).size(), 10U);
}

} // namespace
} // namespace quillon
