#include <quillon/app/views/practice/keyboard_view.h>
#include <quillon/app/views/practice/practice_view.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/app/views/support/typed_answers.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QTest>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

RawMenuItem command(const char* title, const char* key) {
    RawMenuItem item;
    item.title = title;
    item.cmdChar = key;
    item.cmdModifiers = 12; // ⌃ without ⌘
    return item;
}

MenuReading menusWith(std::initializer_list<RawMenuItem> items) {
    RawMenuItem file;
    file.title = "File";
    file.children = items;
    return {{file}, ReadOutcome::complete};
}

class PracticeViewTest : public testing::Test {
  protected:
    void open() {
        defineKeys(desk.desktop.keyReading);
        view = new PracticeView(
            desk.model, desk.themes, keyboard(),
            [](const AppSheet& sheet, const UsageRecords&, const PracticeDeck::Ids&) {
                return sheet.entries;
            },
            &window);
        view->resize(480, 400);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }
    /// Has the application's menus read.
    void read(std::int64_t pid, const std::string& name, const MenuReading& menus) {
        const RunningApp app{pid, "org.example." + name, name, {}};
        desk.desktop.menus.answer(pid, menus);
        desk.desktop.front.setCurrent(app);
        desk.desktop.access.setTrusted(true);
        desk.model.refreshTrust();
        desk.model.frontAppChanged(app);
        desk.desktop.background.runAll();
        QApplication::processEvents();
    }
    void readWriter() { read(2, "Writer", menusWith({command("Save", "S"), command("Quit", "Q")})); }

    QStringList texts() const {
        QStringList texts;
        for (const auto* label : view->findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty())
                texts.append(label->text());
        return texts;
    }
    /// As the mouse does.
    void showAnswer() {
        for (auto* button : view->findChildren<QAbstractButton*>())
            if (button->isVisible() && button->text() == u"Show Answer"_s)
                QTest::mouseClick(button, Qt::LeftButton);
    }
    QStringList buttons() const {
        QStringList labels;
        for (const auto* button : view->findChildren<QAbstractButton*>())
            if (button->isVisible())
                labels.append(button->text());
        return labels;
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) { typeKey(key, held); }
    AnswerInput::Needs keyboard() {
        return {desk.desktop.keyReading, desk.desktop.keyboardGrab, desk.desktop.timers};
    }
    const QLabel* label(const QString& text) const {
        for (const auto* label : view->findChildren<QLabel*>())
            if (label->isVisible() && label->text() == text)
                return label;
        return nullptr;
    }
    UsageRecord record(const char* id) const {
        return desk.model.usage().record("org.example.Writer", id).value_or(UsageRecord());
    }

    ViewDesk desk;
    QWidget window;
    PracticeView* view = nullptr;
};

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
