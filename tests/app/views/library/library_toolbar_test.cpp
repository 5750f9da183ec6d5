#include "library_fixture.h"

#include <quillon/app/views/components/alert.h>

#include <gmock/gmock.h>

#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class LibraryToolbarTest : public LibraryTest {
  protected:
    LibraryToolbarTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void chooseGeany() {
        readApp(desk, sheetOf("Geany", {"Save", "Open"}));
        choose(0);
    }
    QPushButton& button(const QString& label) const {
        for (QPushButton* const one : view.findChildren<QPushButton*>())
            if (one->text() == label)
                return *one;
        throw std::out_of_range("no such button");
    }
    QMenu& sheetMenu() const { return *button(u"Cheat Sheet"_s).menu(); }
    void pick(int action) const { sheetMenu().actions().at(action)->trigger(); }
    QFileDialog* saveDialog() const { return view.findChild<QFileDialog*>(); }
    Alert* alert() const { return view.findChild<Alert*>(); }
    void confirm(const QString& file) const {
        saveDialog()->selectFile(file);
        QMetaObject::invokeMethod(saveDialog(), "accept");
    }
    static void settleAll() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    std::vector<std::string> alertTexts() const {
        std::vector<std::string> texts;
        for (const QLabel* const label : alert()->findChildren<QLabel*>())
            texts.push_back(label->text().toStdString());
        return texts;
    }

    QTemporaryDir folder;
};

TEST_F(LibraryToolbarTest, SaysWhatItOffers) {
    EXPECT_EQ(
        button(u"Practice"_s).toolTip(), u"Drill this app’s shortcuts, weighted to the ones you click"_s);
    EXPECT_EQ(
        button(u"Cheat Sheet"_s).toolTip(),
        u"A printable cheat sheet of these shortcuts, pinned first, with your notes"_s);
    QStringList actions;
    for (const QAction* const action : sheetMenu().actions())
        actions << action->text();
    EXPECT_EQ(actions, (QStringList{u"Save as PDF…"_s, u"Print…"_s, u"Copy as Markdown"_s}));
    EXPECT_FALSE(button(u"Practice"_s).isEnabled()) << "no application is chosen";
    EXPECT_FALSE(button(u"Cheat Sheet"_s).isEnabled());
    chooseGeany();
    EXPECT_TRUE(button(u"Practice"_s).isEnabled());
    EXPECT_TRUE(button(u"Cheat Sheet"_s).isEnabled());
}

TEST_F(LibraryToolbarTest, PracticeIsAboutTheShownApp) {
    chooseGeany();
    button(u"Practice"_s).click();
    EXPECT_EQ(desk.model.practiceApp(), "org.example.Geany");
}

TEST_F(LibraryToolbarTest, MarkdownGoesToTheClipboard) {
    chooseGeany();
    desk.model.togglePin("org.example.Geany", "File › Save");
    desk.model.setNote("org.example.Geany", "File › Save", "often");
    pick(2);
    EXPECT_EQ(
        QApplication::clipboard()->text(),
        u"# Geany shortcuts\n\n## Pinned\n\n- **⌃S** Save\n  - often\n\n## File\n\n- **⌃S** Save\n  - often\n"
        "- **⌃S** Open\n"_s);
    desk.model.setKeyLabels(KeyLabels::names);
    pick(2);
    EXPECT_TRUE(QApplication::clipboard()->text().endsWith(
        u"\n## File\n\n- **Ctrl S** Save\n  - often\n- **Ctrl S** Open\n"_s))
        << QApplication::clipboard()->text().toStdString();
}

TEST_F(LibraryToolbarTest, ThePdfIsSavedWhereTheUserSays) {
    chooseGeany();
    pick(0);
    ASSERT_TRUE(saveDialog());
    EXPECT_TRUE(saveDialog()->isVisible());
    EXPECT_EQ(saveDialog()->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(saveDialog()->nameFilters(), QStringList{u"PDF documents (*.pdf)"_s});
    ASSERT_EQ(saveDialog()->selectedFiles().size(), 1);
    EXPECT_TRUE(saveDialog()->selectedFiles().first().endsWith(u"/Geany Shortcuts.pdf"_s));
    const QString file = folder.filePath(u"keys.pdf"_s);
    confirm(file);
    EXPECT_THAT(exports.saved, ElementsAre(Pair("%PDF-fake", std::filesystem::path(file.toStdString()))));
    settleAll();
    EXPECT_EQ(saveDialog(), nullptr);
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(LibraryToolbarTest, ADocumentIsCalledOne) {
    chooseGeany();
    pick(0);
    Q_EMIT saveDialog()->fileSelected(folder.filePath(u"keys.txt"_s));
    EXPECT_THAT(
        exports.saved, ElementsAre(Pair("%PDF-fake", folder.filePath(u"keys.txt.pdf"_s).toStdString())));
}

TEST_F(LibraryToolbarTest, WhatNobodyAgreedToReplaceIsNot) {
    chooseGeany();
    QFile there(folder.filePath(u"keys.txt.pdf"_s));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    pick(0);
    QFileDialog* const first = saveDialog();
    Q_EMIT first->fileSelected(folder.filePath(u"keys.txt"_s));
    EXPECT_THAT(exports.saved, IsEmpty());
    delete first;
    ASSERT_TRUE(saveDialog()) << "it is asked for again, under the name that is there";
    EXPECT_EQ(saveDialog()->selectedFiles(), QStringList{folder.filePath(u"keys.txt.pdf"_s)});
}

TEST_F(LibraryToolbarTest, CancellingWritesNothing) {
    chooseGeany();
    pick(0);
    saveDialog()->reject();
    settleAll();
    EXPECT_THAT(exports.saved, IsEmpty());
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(LibraryToolbarTest, WhatFailsIsToldAndTheRestStays) {
    chooseGeany();
    QTest::keyClicks(&field(), u"open"_s);
    exports.saveFailure = ExportFailure{"The folder cannot be written."};
    pick(0);
    confirm(folder.filePath(u"keys.pdf"_s));
    settleAll();
    ASSERT_TRUE(alert());
    EXPECT_TRUE(alert()->isVisible());
    EXPECT_THAT(alertTexts(), ElementsAre("Couldn’t make the cheat sheet", "The folder cannot be written."));
    EXPECT_EQ(view.selection(), "org.example.Geany");
    EXPECT_EQ(field().text(), u"open"_s);
    auto* const ok = alert()->findChild<QPushButton*>();
    EXPECT_EQ(ok->text(), u"OK"_s);
    ok->click();
    settleAll();
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(LibraryToolbarTest, ADocumentThatCannotBeMadeIsNotAskedAbout) {
    chooseGeany();
    exports.pdfFailure = ExportFailure{"No fonts."};
    pick(0);
    EXPECT_EQ(saveDialog(), nullptr);
    ASSERT_TRUE(alert());
    EXPECT_THAT(alertTexts(), ElementsAre("Couldn’t make the cheat sheet", "No fonts."));
}

TEST_F(LibraryToolbarTest, PrintingIsAskedForOverTheWindow) {
    chooseGeany();
    pick(1);
    ASSERT_EQ(exports.printed.size(), 1U);
    EXPECT_EQ(exports.printed.front().sheet.appName, "Geany");
    EXPECT_EQ(exports.printWindow, view.window());
    exports.printFailed({"No printer."});
    ASSERT_TRUE(alert());
    EXPECT_THAT(alertTexts(), ElementsAre("Couldn’t make the cheat sheet", "No printer."));
}

TEST_F(LibraryToolbarTest, KeysOnPaperAreNamedAsOnTheScreen) {
    chooseGeany();
    pick(0);
    EXPECT_FALSE(exports.made.back().withNames);
    desk.model.setKeyLabels(KeyLabels::names);
    pick(0);
    EXPECT_TRUE(exports.made.back().withNames);
}

} // namespace
} // namespace quillon
