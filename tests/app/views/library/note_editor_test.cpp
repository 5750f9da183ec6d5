#include "library_fixture.h"

#include <quillon/app/views/library/note_editor.h>

#include <QPushButton>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class NoteEditorTest : public LibraryTest {
  protected:
    NoteEditorTest() {
        readApp(desk, sheetOf("Geany", {"Save", "Open"}));
        choose(0);
    }
    void open() { click(rowOf("Save"), RowButton::note); }
    NoteEditor* editor() const { return view.findChild<NoteEditor*>(); }
    QPlainTextEdit& note() const { return *editor()->findChild<QPlainTextEdit*>(); }
    void pressButton(const QString& label) const {
        for (QPushButton* const button : editor()->findChildren<QPushButton*>())
            if (button->text() == label)
                button->click();
    }
    bool noteGetsTheKeyboard() const {
        return QTest::qWaitFor([this] { return note().hasFocus(); });
    }
    static void settleAll() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    std::string stored() const { return said("Geany", "Save").note; }
};

TEST_F(NoteEditorTest, SaysWhatItIsFor) {
    open();
    ASSERT_TRUE(editor());
    EXPECT_TRUE(editor()->isVisible());
    EXPECT_TRUE(editor()->isModal());
    EXPECT_EQ(note().placeholderText(), u"A note to remember it by"_s);
    EXPECT_EQ(note().accessibleName(), u"Note for Save"_s);
    EXPECT_EQ(note().toPlainText(), QString());
}

TEST_F(NoteEditorTest, SaveTrimsAndKeepsPinAndMute) {
    desk.model.togglePin("org.example.Geany", "File › Save");
    desk.model.setMuted("org.example.Geany", "File › Save", true);
    open();
    note().setPlainText(u"\u2003 \n\tfirst\nsecond\u00a0word \u2028\n "_s);
    pressButton(u"Save"_s);
    settleAll();
    EXPECT_EQ(
        said("Geany", "Save"),
        (Annotation{.pinned = true, .note = "first\nsecond\u00a0word", .muted = true}));
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(detail().rows().row(detail().rows().index(rowOf("Save"))).note, u"first second word"_s);
}

TEST_F(NoteEditorTest, BlanksAreNoNote) {
    desk.model.setNote("org.example.Geany", "File › Save", "old");
    settle();
    open();
    EXPECT_EQ(note().toPlainText(), u"old"_s);
    note().setPlainText(u" \n\t\n"_s);
    pressButton(u"Save"_s);
    EXPECT_TRUE(desk.model.annotations().apps.empty());
}

TEST_F(NoteEditorTest, CancelAndEscChangeNothing) {
    desk.model.setNote("org.example.Geany", "File › Save", "old");
    settle();
    open();
    note().setPlainText(u"new"_s);
    pressButton(u"Cancel"_s);
    settleAll();
    EXPECT_EQ(editor(), nullptr);
    open();
    QTest::keyClicks(&note(), u"new"_s);
    QTest::keyClick(&note(), Qt::Key_Escape);
    settleAll();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(stored(), "old");
    EXPECT_TRUE(view.isVisible());
}

TEST_F(NoteEditorTest, ReturnIsALineAndCtrlReturnSaves) {
    ASSERT_TRUE(makeActive(view));
    open();
    ASSERT_TRUE(noteGetsTheKeyboard());
    QTest::keyClicks(&note(), u"one"_s);
    QTest::keyClick(&note(), Qt::Key_Return);
    QTest::keyClicks(&note(), u"two"_s);
    QTest::keyClick(&note(), Qt::Key_Return, Qt::ControlModifier);
    settleAll();
    EXPECT_EQ(stored(), "one\ntwo");
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(NoteEditorTest, TabLeadsToTheButtons) {
    ASSERT_TRUE(makeActive(view));
    open();
    ASSERT_TRUE(noteGetsTheKeyboard());
    QTest::keyClick(&note(), Qt::Key_Tab);
    const auto* const button = qobject_cast<QPushButton*>(QApplication::focusWidget());
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(), u"Cancel"_s);
    EXPECT_EQ(note().toPlainText(), QString());
}

TEST_F(NoteEditorTest, TakesNotesAndTitlesOfAnyLength) {
    const std::string title(300, 'M');
    readApp(desk, sheetOf("Geany", {title}));
    settle();
    std::string long_ = "\tשמור\r\n😀";
    long_ += std::string(10'000, 'x');
    desk.model.setNote("org.example.Geany", "File › " + title, long_);
    settle();
    click(rowOf(title), RowButton::note);
    EXPECT_LT(editor()->width(), 700);
    EXPECT_LT(editor()->height(), 500);
    pressButton(u"Save"_s);
    long_.erase(long_.find('\r'), 1);
    EXPECT_EQ(said("Geany", title).note, long_.substr(1));
}

TEST_F(NoteEditorTest, GoesWithItsApplication) {
    open();
    desk.model.eraseEverything();
    settleAll();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_TRUE(desk.model.annotations().apps.empty());
}

TEST_F(NoteEditorTest, TheKeyboardOpensItToo) {
    ASSERT_TRUE(makeActive(view));
    detail().setFocus();
    detail().setCurrentIndex(detail().model()->index(rowOf("Save"), 0));
    QTest::keyClick(&detail(), Qt::Key_Right);
    QTest::keyClick(&detail(), Qt::Key_Right);
    QTest::keyClick(&detail(), Qt::Key_Return);
    EXPECT_TRUE(editor());
}

} // namespace
} // namespace quillon
