#include "settings_fixture.h"

#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/settings/shown_path.h>

#include <QScrollArea>
#include <QScrollBar>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;

TEST_F(SettingsViewTest, HasThreeTabsAndOpensWithTheOneThatWasOpenLast) {
    QStringList labels;
    for (int i = 0; i < view->tabs().count(); ++i)
        labels.append(view->tabs().tabText(i));
    EXPECT_EQ(labels, (QStringList{u"General"_s, u"Coach"_s, u"Privacy"_s}));
    EXPECT_TRUE(view->general().isVisible());
    desk.model.setSettingsTab(SettingsTab::privacy);
    open();
    EXPECT_EQ(view->tabs().currentIndex(), 2);
    EXPECT_TRUE(view->privacy().isVisible());
    EXPECT_FALSE(view->general().isVisible());
}

TEST_F(SettingsViewTest, ATabIsChosenByClickAndByKeyAndRemembered) {
    QTest::mouseClick(&view->tabs(), Qt::LeftButton, {}, view->tabs().tabRect(1).center());
    EXPECT_EQ(desk.model.settingsTab(), SettingsTab::coach);
    EXPECT_TRUE(view->coach().isVisible());
    view->tabs().setFocus();
    QTest::keyClick(&view->tabs(), Qt::Key_Right);
    EXPECT_EQ(desk.model.settingsTab(), SettingsTab::privacy);
    EXPECT_TRUE(view->privacy().isVisible());
    EXPECT_EQ(Settings(desk.folder.filePath(u"settings.ini"_s)).settingsTab(), SettingsTab::privacy);
}

TEST_F(SettingsViewTest, ATabThatIsChosenElsewhereOpensAtOnce) {
    desk.model.setSettingsTab(SettingsTab::coach);
    EXPECT_EQ(view->tabs().currentIndex(), 1);
    EXPECT_TRUE(view->coach().isVisible());
}

TEST_F(SettingsViewTest, TabsAreReadAsTabs) {
    EXPECT_EQ(read(view->tabs()).role(), QAccessible::PageTabList);
    EXPECT_EQ(read(view->tabs()).child(1)->text(QAccessible::Name), u"Coach"_s);
}

TEST_F(SettingsViewTest, IsAsLargeAsItIsMeantToBe) {
    EXPECT_EQ(view->sizeHint().width(), 560);
    EXPECT_GE(view->sizeHint().height(), 420);
}

/// Every text has the room that it needs, on every tab.
void expectNothingClipped(SettingsView& view, AppModel& model) {
    for (const SettingsTab tab : {SettingsTab::general, SettingsTab::coach, SettingsTab::privacy}) {
        model.setSettingsTab(tab);
        QApplication::processEvents();
        for (const QLabel* label : view.findChildren<QLabel*>()) {
            if (!label->isVisible())
                continue;
            const QRect needed = label->fontMetrics().boundingRect(
                QRect(0, 0, label->width(), 10'000), Qt::TextWordWrap, label->text());
            EXPECT_LE(needed.height(), label->height()) << label->text().toStdString();
            EXPECT_LE(needed.width(), label->width()) << label->text().toStdString();
        }
        for (const auto* scroll : view.findChildren<QScrollArea*>()) {
            if (scroll->isVisible()) {
                EXPECT_EQ(scroll->verticalScrollBar()->maximum(), 0);
            }
        }
    }
}

TEST_F(SettingsViewTest, NothingIsClippedAtAnyFontSize) {
    desk.desktop.launcherKey.set(Modifiers::command);
    desk.desktop.sessionStart.refuses = true;
    QTest::mouseClick(&view->general().start(), Qt::LeftButton);
    for (const double points : {8.0, 11.0, 16.0, 24.0}) {
        desk.desktop.appearance.set({ColourScheme::light, {}, points});
        QApplication::processEvents();
        view->resize(view->sizeHint());
        QApplication::processEvents();
        expectNothingClipped(*view, desk.model);
    }
}

TEST_F(SettingsViewTest, WhatHasNoRoomIsScrolledToByTheKeyboard) {
    view->resize(420, 260);
    QApplication::processEvents();
    for (int presses = 0; presses < 20 && !view->general().allow().hasFocus(); ++presses)
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : view.get(), Qt::Key_Tab);
    ASSERT_TRUE(view->general().allow().hasFocus());
    const QPoint at = view->general().allow().mapTo(view.get(), QPoint(0, 0));
    EXPECT_TRUE(view->rect().contains(QRect(at, view->general().allow().size())));
}

TEST_F(SettingsViewTest, TheCoachIsSwitchedOnAndOff) {
    openTab(SettingsTab::coach);
    EXPECT_THAT(
        texts(), ElementsAre(
                     u"Nudge me when I click a menu command that has a shortcut"_s,
                     u"Count the shortcuts I type (to know which ones I already use)"_s,
                     u"Counting looks only at key presses with ⌘ or ⌃ and compares them with the front app’s "
                     u"menu shortcuts. "
                     "Quillon never records what you type. A shortcut stops being nudged once you’ve typed "
                     "it 5 times more than "
                     "you’ve clicked it; you can also mute any one in the Library."_s));
    desk.model.setKeyLabels(KeyLabels::names);
    EXPECT_TRUE(texts().at(2).startsWith(u"Counting looks only at key presses with Super or Ctrl and "_s));
    QTest::mouseClick(&view->coach().nudges(), Qt::LeftButton);
    EXPECT_FALSE(desk.model.nudgesOn());
    EXPECT_TRUE(desk.model.countTyped());
    view->coach().counting().setFocus();
    QTest::keyClick(&view->coach().counting(), Qt::Key_Space);
    EXPECT_FALSE(desk.model.countTyped());
    desk.model.setNudgesOn(true);
    EXPECT_TRUE(view->coach().nudges().isChecked());
    EXPECT_EQ(
        read(view->coach().nudges()).text(QAccessible::Name),
        u"Nudge me when I click a menu command that has a shortcut"_s);
}

class PrivacyPageTest : public SettingsViewTest {
  protected:
    PrivacyPageTest() {
        desk.showSample();
        openTab(SettingsTab::privacy);
    }

    PrivacyPage& page() { return view->privacy(); }
    void pressErase() { QTest::mouseClick(&page().erase(), Qt::LeftButton); }
};

TEST_F(PrivacyPageTest, SaysWhatIsKeptAndWhere) {
    EXPECT_THAT(
        texts(), ElementsAre(
                     u"Everything Quillon learns stays on this computer: the menus it has read, how often "
                     u"you click or type "
                     "each shortcut, your practice results, pins and notes. They’re plain files in "
                     "~/.local/share/app.quillon.Quillon."_s,
                     u"Quillon goes online only to look for updates."_s));
    EXPECT_EQ(page().erase().text(), u"Erase Stats, Pins and Notes…"_s);
}

TEST_F(PrivacyPageTest, NothingIsErasedWithoutAConfirmation) {
    pressErase();
    ASSERT_TRUE(page().confirmation());
    EXPECT_TRUE(page().confirmation()->isVisible());
    EXPECT_EQ(
        read(*page().confirmation()).text(QAccessible::Name), u"Erase everything Quillon has learned?"_s);
    EXPECT_TRUE(desk.model.current());
    pressErase();
    EXPECT_EQ(view->findChildren<Confirmation*>().size(), 1);
}

TEST_F(PrivacyPageTest, TheConfirmationSaysWhatGoesAndWhatStays) {
    pressErase();
    QStringList said;
    for (const QLabel* label : page().confirmation()->findChildren<QLabel*>())
        said.append(label->text());
    EXPECT_THAT(
        said,
        ElementsAre(
            u"Erase everything Quillon has learned?"_s,
            u"Your counts, practice results, pins, notes and the menus read so far are deleted. Your settings stay."_s));
    EXPECT_EQ(page().confirmation()->destroyButton().text(), u"Erase"_s);
    EXPECT_EQ(page().confirmation()->cancelButton().text(), u"Cancel"_s);
}

TEST_F(PrivacyPageTest, EraseErasesAndKeepsTheSettings) {
    desk.model.setTrigger(TriggerKey::option);
    pressErase();
    QTest::mouseClick(&page().confirmation()->destroyButton(), Qt::LeftButton);
    EXPECT_FALSE(desk.model.current());
    EXPECT_TRUE(desk.model.usage().apps.empty());
    EXPECT_EQ(desk.model.trigger(), TriggerKey::option);
    EXPECT_FALSE(page().confirmation() && page().confirmation()->isVisible());
}

TEST_F(PrivacyPageTest, ReturnEscapeAndCancelChangeNothing) {
    const auto cancelled = [this](const std::function<void(Confirmation&)>& cancel) {
        pressErase();
        Confirmation& confirmation = *page().confirmation();
        EXPECT_TRUE(makeActive(confirmation));
        cancel(confirmation);
        EXPECT_FALSE(page().confirmation() && page().confirmation()->isVisible());
        EXPECT_TRUE(desk.model.current());
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    cancelled([](Confirmation& asked) { QTest::keyClick(&asked, Qt::Key_Escape); });
    cancelled([](Confirmation& asked) { QTest::keyClick(asked.focusWidget(), Qt::Key_Return); });
    cancelled([](Confirmation& asked) { QTest::mouseClick(&asked.cancelButton(), Qt::LeftButton); });
    cancelled([](Confirmation& asked) { asked.close(); });
}

TEST_F(PrivacyPageTest, EraseIsReachedByTheKeyboard) {
    pressErase();
    Confirmation& confirmation = *page().confirmation();
    QApplication::processEvents(); // the window system still gives the keyboard to what was shown before
    EXPECT_TRUE(makeActive(confirmation));
    EXPECT_TRUE(confirmation.cancelButton().hasFocus());
    QTest::keyClick(confirmation.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(confirmation.destroyButton().hasFocus());
    QTest::keyClick(confirmation.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(desk.model.current());
}

TEST_F(PrivacyPageTest, ButtonsEndWhereTheirColumnDoes) {
    const auto right = [](const QWidget& widget, const QWidget& window) {
        return widget.mapTo(&window, QPoint(widget.width(), 0)).x();
    };
    EXPECT_EQ(right(page().erase(), *view) - focusRingRoom, right(*page().findChild<FormGroup*>(), *view));
    pressErase();
    Confirmation& confirmation = *page().confirmation();
    EXPECT_EQ(
        right(confirmation.destroyButton(), confirmation) - focusRingRoom,
        right(*confirmation.findChild<ThemedLabel*>(), confirmation));
}

TEST(ShownPathTest, WhatLiesInTheHomeBeginsWithATilde) {
    EXPECT_EQ(shownPath("/home/a/.local/share/b", "/home/a"), u"~/.local/share/b"_s);
    EXPECT_EQ(shownPath("/home/a/.local/share/b", "/home/a/"), u"~/.local/share/b"_s);
    EXPECT_EQ(shownPath("/data/b", "/home/a"), u"/data/b"_s);
    EXPECT_EQ(shownPath("/home/ab/c", "/home/a"), u"/home/ab/c"_s);
    EXPECT_EQ(shownPath("/home/a", "/home/a"), u"~/"_s);
    EXPECT_EQ(shownPath("/data/b", ""), u"/data/b"_s);
    EXPECT_EQ(shownPath("", "/home/a"), u""_s);
    EXPECT_EQ(shownPath("/home/a/b\nc", "/home/a"), u"~/b␤c"_s);
}

} // namespace
} // namespace quillon
