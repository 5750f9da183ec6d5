#include <quillon/app/core/updates/release.h>
#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/platform/fake/fake_foreground.h>
#include <quillon/app/platform/fake/fake_software_pages.h>
#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/themed_button.h>
#include <quillon/app/views/updates/release_window.h>
#include <quillon/app/views/updates/update_windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QTest>

#include <string>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class UpdateWindowsTest : public testing::Test {
  protected:
    ~UpdateWindowsTest() override { endClosed(); }

    static void endClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    static std::vector<QDialog*> open() {
        endClosed();
        std::vector<QDialog*> dialogs;
        for (QWidget* const widget : QApplication::topLevelWidgets())
            if (auto* const dialog = qobject_cast<QDialog*>(widget); dialog && dialog->isVisible())
                dialogs.push_back(dialog);
        return dialogs;
    }
    static QDialog& only() {
        EXPECT_EQ(open().size(), 1U);
        return *open().at(0);
    }
    static std::vector<std::string> buttons(const QDialog& dialog) {
        std::vector<std::string> labels;
        for (const QPushButton* const button : dialog.findChildren<QPushButton*>())
            labels.push_back(button->text().toStdString());
        return labels;
    }
    static void press(const QDialog& dialog, const QString& label) {
        for (QPushButton* const button : dialog.findChildren<QPushButton*>())
            if (button->text() == label)
                return button->click();
        FAIL() << label.toStdString();
    }
    static Release release(const std::string& version) {
        return {
            .version = *ReleaseVersion::fromText(version),
            .shownVersion = version,
            .notes = "<ul><li>Faster</li></ul>",
            .page = "https://example.org/download"};
    }

    FakeAppearance appearance;
    ThemeSource themes{appearance};
    FakeForeground foreground;
    FakeSoftwarePages pages;
    std::vector<std::string> dismissed;
    UpdateWindows windows{{
        .themes = themes,
        .foreground = foreground,
        .pages = pages,
        .version = "1.2",
        .dismissed = [this](const std::string& version) { dismissed.push_back(version); },
    }};
};

TEST_F(UpdateWindowsTest, AMessageHasItsTextAndOneButton) {
    for (const UpdateNotice notice :
         {UpdateNotice::upToDate, UpdateNotice::unreachable, UpdateNotice::unreadable}) {
        windows.tell(notice);
        const auto expected = UpdateTexts::notice(notice, u"1.2"_s);
        QDialog& alert = only();
        std::vector<QString> texts;
        for (const QLabel* const label : alert.findChildren<QLabel*>())
            if (!label->text().isEmpty())
                texts.push_back(label->text());
        EXPECT_THAT(texts, ElementsAre(expected.title, expected.text));
        EXPECT_THAT(buttons(alert), ElementsAre("OK"));
        EXPECT_EQ(alert.accessibleName(), expected.title);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&alert)->text(QAccessible::Name), expected.title);
        press(alert, u"OK"_s);
        EXPECT_THAT(open(), IsEmpty());
    }
}

TEST_F(UpdateWindowsTest, ThereIsOneMessageAtATime) {
    windows.tell(UpdateNotice::unreachable);
    windows.tell(UpdateNotice::unreachable);
    windows.tell(UpdateNotice::upToDate);
    EXPECT_EQ(only().accessibleName(), u"You’re up to date"_s);
}

TEST_F(UpdateWindowsTest, TheKeyboardAloneClosesAMessage) {
    windows.tell(UpdateNotice::upToDate);
    QTest::keyClick(&only(), Qt::Key_Return);
    EXPECT_THAT(open(), IsEmpty());
    windows.tell(UpdateNotice::upToDate);
    QTest::keyClick(&only(), Qt::Key_Escape);
    EXPECT_THAT(open(), IsEmpty());
}

TEST_F(UpdateWindowsTest, UpdatesOfTheSystemLeadToItsSoftwareCentre) {
    windows.tell(UpdateNotice::withSystem);
    EXPECT_THAT(buttons(only()), ElementsAre("OK")) << "where there is one";
    pages.hasCentre = true;
    windows.tell(UpdateNotice::withSystem);
    EXPECT_THAT(buttons(only()), ElementsAre("Open Software Centre", "OK"));
    press(only(), u"Open Software Centre"_s);
    EXPECT_EQ(pages.centreOpened, 1);
    EXPECT_THAT(open(), IsEmpty());
}

TEST_F(UpdateWindowsTest, ARelaseLeadsToItsPage) {
    windows.offer(release("1.3"), Occasion::asked);
    QDialog& window = only();
    EXPECT_EQ(window.accessibleName(), u"Quillon 1.3 is available"_s);
    EXPECT_THAT(buttons(window), ElementsAre("Later", "Open Download Page"));
    const auto* const notes = window.findChild<QTextBrowser*>();
    ASSERT_TRUE(notes);
    EXPECT_EQ(notes->toPlainText(), u"Faster"_s);
    EXPECT_EQ(notes->accessibleName(), u"What is new in Quillon 1.3"_s);
    press(window, u"Open Download Page"_s);
    EXPECT_THAT(pages.pages, ElementsAre("https://example.org/download"));
    EXPECT_THAT(open(), IsEmpty());
    EXPECT_THAT(dismissed, ElementsAre("1.3"));
}

TEST_F(UpdateWindowsTest, ThereAreAsManyWaysAsThereAre) {
    Release bare = release("1.3");
    bare.notes = bare.page = "";
    windows.offer(bare, Occasion::asked);
    EXPECT_THAT(buttons(only()), ElementsAre("Later"));
    EXPECT_FALSE(only().findChild<QTextBrowser*>());

    bare.shownVersion = "1.4";
    bare.notesPage = "https://example.org/notes";
    pages.hasCentre = true;
    windows.offer(bare, Occasion::asked);
    EXPECT_THAT(buttons(only()), ElementsAre("Later", "Read Release Notes", "Open Software Centre"));
    press(only(), u"Open Software Centre"_s);
    EXPECT_EQ(pages.centreOpened, 1);

    windows.offer(bare, Occasion::asked);
    press(only(), u"Read Release Notes"_s);
    EXPECT_THAT(pages.pages, ElementsAre("https://example.org/notes"));
}

TEST_F(UpdateWindowsTest, LaterPutsTheReleaseOff) {
    windows.offer(release("1.3"), Occasion::unasked);
    press(only(), u"Later"_s);
    EXPECT_THAT(dismissed, ElementsAre("1.3"));
    windows.offer(release("1.4"), Occasion::unasked);
    QTest::keyClick(&only(), Qt::Key_Escape);
    EXPECT_THAT(dismissed, ElementsAre("1.3", "1.4"));
    windows.offer(release("1.5"), Occasion::unasked);
    only().close();
    EXPECT_THAT(dismissed, ElementsAre("1.3", "1.4", "1.5"));
    EXPECT_THAT(pages.pages, IsEmpty());
}

TEST_F(UpdateWindowsTest, ANewerReleaseTakesThePlaceOfOneThatIsShown) {
    windows.offer(release("1.3"), Occasion::unasked);
    windows.offer(release("1.3"), Occasion::unasked);
    windows.offer(release("1.3"), Occasion::asked);
    only();
    windows.offer(release("1.4"), Occasion::unasked);
    EXPECT_EQ(only().accessibleName(), u"Quillon 1.4 is available"_s);
    EXPECT_THAT(dismissed, IsEmpty()) << "nobody put the other one off";
}

TEST_F(UpdateWindowsTest, WhatWasNotAskedForLeavesTheKeyboardWhereItIs) {
    windows.offer(release("1.3"), Occasion::unasked);
    EXPECT_TRUE(only().testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(UpdateWindowsTest, SaysWhenAPageDoesNotOpen) {
    pages.opensPages = false;
    windows.offer(release("1.3"), Occasion::asked);
    press(only(), u"Open Download Page"_s);
    EXPECT_EQ(only().accessibleName(), u"Couldn’t open the page"_s);
    EXPECT_TRUE(only().accessibleDescription().contains(u"https://example.org/download"_s));
}

TEST_F(UpdateWindowsTest, AButtonOutlivesWhatIsToldOfItsPress) {
    pages.hasCentre = true;
    pages.opensCentre = false;
    windows.tell(UpdateNotice::withSystem);
    const QPointer<QPushButton> button = only().findChildren<QPushButton*>().at(0);
    button->click();
    EXPECT_TRUE(button) << "its event is not over yet";
    EXPECT_EQ(only().accessibleName(), u"Couldn’t open the software centre"_s);
}

TEST_F(UpdateWindowsTest, ButtonsEndWhereTheTextDoes) {
    windows.offer(release("1.3"), Occasion::asked);
    const QDialog& window = only();
    const auto right = [&](const QWidget* widget) {
        return widget->mapTo(&window, QPoint(widget->width(), 0)).x();
    };
    EXPECT_EQ(
        right(window.findChildren<QPushButton*>().last()) - focusRingRoom,
        right(window.findChild<QTextBrowser*>()));
}

TEST_F(UpdateWindowsTest, ALinkInTheNotesOpensItsPage) {
    Release linked = release("1.3");
    linked.notes = "<a href=\"https://example.org/more\">more</a>";
    windows.offer(linked, Occasion::asked);
    Q_EMIT only().findChild<QTextBrowser*>()->anchorClicked(QUrl(u"https://example.org/more"_s));
    EXPECT_THAT(pages.pages, ElementsAre("https://example.org/more"));
    only(); // stays open
}

TEST_F(UpdateWindowsTest, AreGoneWithTheProgram) {
    {
        UpdateWindows others(
            {.themes = themes,
             .foreground = foreground,
             .pages = pages,
             .version = "1",
             .dismissed = [](const auto&) {}});
        others.tell(UpdateNotice::upToDate);
        others.offer(release("1.3"), Occasion::asked);
        EXPECT_EQ(open().size(), 2U);
    }
    EXPECT_THAT(open(), IsEmpty());
}

TEST_F(UpdateWindowsTest, FollowTheTheme) {
    windows.tell(UpdateNotice::upToDate);
    appearance.set({ColourScheme::dark, {}, {}});
    EXPECT_EQ(only().palette().color(QPalette::Window), themes.theme().palette.window);
}

} // namespace
} // namespace quillon
