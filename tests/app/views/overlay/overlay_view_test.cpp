#include "overlay_fixture.h"

#include <quillon/kit/menu/sample_menus.h>

#include <QScrollBar>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::UnorderedElementsAre;

TEST_F(OverlayTest, WithoutPermissionItAsksForItAndShowsHow) {
    EXPECT_THAT(texts(), Contains(u"Quillon needs Accessibility to read menus"_s));
    EXPECT_THAT(
        texts(),
        Contains(u"Allow it once in your desktop’s accessibility settings. Nothing leaves your computer."_s));
    QTest::mouseClick(view->findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_THAT(desk.desktop.windows.opened(), ElementsAre(WindowName::welcome));
}

TEST_F(OverlayTest, ARecordOfAnotherApplicationPreparesNothingAnew) {
    desk.trust();
    desk.showSample();
    const PreparedSheet* before = &view->area().sheet();
    desk.model.togglePin("org.example.other", "File › Save");
    EXPECT_EQ(&view->area().sheet(), before);
    desk.model.togglePin(std::string(SampleMenus::bundleID), "File › Save");
    EXPECT_NE(&view->area().sheet(), before);
}

TEST_F(OverlayTest, PermissionThatIsGrantedWhileItIsOpenShowsAtOnce) {
    desk.showSample();
    EXPECT_EQ(view->state(), OverlayState::needsAccessibility);
    desk.trust();
    EXPECT_EQ(view->state(), OverlayState::shortcuts);
    EXPECT_TRUE(view->area().isVisible());
}

TEST_F(OverlayTest, AShowcaseNeedsNoPermission) {
    open(OverlayView::Mode::showcase);
    desk.showSample();
    EXPECT_EQ(view->state(), OverlayState::shortcuts);
}

TEST_F(OverlayTest, WithoutAnApplicationItSaysWhatToDo) {
    desk.trust();
    EXPECT_THAT(
        texts(), UnorderedElementsAre(
                     u"Quillon"_s, u"Switch to an app, then hold ⌘"_s,
                     u"Let go of ⌘ to close · click to keep it open"_s));
    desk.model.setTrigger(TriggerKey::control);
    EXPECT_THAT(texts(), Contains(u"Switch to an app, then hold ⌃"_s));
    EXPECT_THAT(texts(), Contains(u"Let go of ⌃ to close · click to keep it open"_s));
}

TEST_F(OverlayTest, WhileMenusAreReadItSaysSoUntilTheyArrive) {
    desk.trust();
    desk.desktop.menus.answer("org.example.Writer", {SampleMenus::menuBar(), ReadOutcome::complete});
    desk.beginReading("Writer");
    EXPECT_THAT(texts(), Contains(u"Reading Writer’s menus…"_s));
    EXPECT_THAT(texts(), Contains(u"0 shortcuts from its menus"_s));
    desk.desktop.background.runAll();
    EXPECT_THAT(texts(), Contains(u"59 shortcuts from its menus"_s));
    EXPECT_TRUE(view->area().isVisible());
}

TEST_F(OverlayTest, AnApplicationThatSharesNoMenusIsNamed) {
    desk.trust();
    desk.show(emptySheet("Terminal"));
    EXPECT_THAT(texts(), Contains(u"No menu shortcuts in Terminal"_s));
    EXPECT_THAT(texts(), Contains(u"Some apps draw their own menus, which Linux doesn’t share."_s));
}

TEST_F(OverlayTest, AnApplicationThatDoesNotAnswerIsSaidToBeSilent) {
    desk.trust();
    desk.desktop.menus.answer("org.example.Writer", {{}, ReadOutcome::partial});
    desk.beginReading("Writer");
    desk.desktop.background.runAll();
    EXPECT_THAT(texts(), Contains(u"No menu shortcuts in Writer"_s));
    EXPECT_THAT(
        texts(), Contains(u"Some apps draw their own menus, which Linux doesn’t share.\n"
                          "Writer does not answer now."_s));
    desk.desktop.menus.answer("org.example.Writer", {{}, ReadOutcome::noMenuBar});
    desk.beginReading("Writer");
    desk.desktop.background.runAll();
    EXPECT_THAT(texts(), Contains(u"Some apps draw their own menus, which Linux doesn’t share."_s));
}

TEST_F(OverlayTest, TheHeaderNamesTheApplicationAndCountsItsShortcuts) {
    desk.trust();
    desk.showSample();
    EXPECT_THAT(texts(), Contains(u"Sketchpad"_s));
    EXPECT_THAT(texts(), Contains(u"59 shortcuts from its menus"_s));
    EXPECT_EQ(field().placeholderText(), u"Search shortcuts"_s);
}

TEST_F(OverlayTest, TypingNarrowsTheShortcutsAndTheCount) {
    desk.trust();
    desk.showSample();
    type(u"cmd -"_s);
    EXPECT_EQ(desk.model.query(), "cmd -");
    EXPECT_THAT(texts(), Contains(u"2 of 59 shortcuts"_s));
    EXPECT_THAT(
        cards(),
        ElementsAre(u"# Format"_s, u"# Font"_s, u"Smaller, Font, ⌘-"_s, u"# View"_s, u"Zoom Out, ⌘-"_s));
}

TEST_F(OverlayTest, NotesFindTheirShortcuts) {
    desk.trust();
    desk.showSample();
    type(u"exporting"_s);
    EXPECT_THAT(cards(), ElementsAre(u"# View"_s, u"Zoom to Fit, Handy before exporting, ⌘1"_s));
}

TEST_F(OverlayTest, AQueryOfBlanksStillCounts) {
    desk.trust();
    desk.showSample();
    type(u"  "_s);
    EXPECT_THAT(texts(), Contains(u"59 of 59 shortcuts"_s));
}

TEST_F(OverlayTest, NothingFoundIsSaidAndUndoneByClearing) {
    desk.trust();
    desk.showSample();
    type(u"xyz"_s);
    EXPECT_THAT(texts(), Contains(u"Nothing matches “xyz”"_s));
    EXPECT_THAT(texts(), Contains(u"0 of 59 shortcuts"_s));
    EXPECT_FALSE(view->area().isVisible());
    QTest::mouseClick(view->findChild<QToolButton*>(), Qt::LeftButton);
    EXPECT_EQ(desk.model.query(), "");
    EXPECT_TRUE(view->area().isVisible());
    EXPECT_THAT(texts(), Contains(u"59 shortcuts from its menus"_s));
}

TEST_F(OverlayTest, AnEndlessQueryDoesNotWidenTheWindow) {
    desk.trust();
    desk.showSample();
    type(QString(300, u'x'));
    EXPECT_LE(view->minimumSizeHint().width(), 1180);
}

TEST_F(OverlayTest, AnEndlessQueryIsShortenedInsideOfItsMarks) {
    desk.trust();
    desk.showSample();
    type(QString(300, u'x'));
    for (const ThemedLabel* label : view->findChildren<ThemedLabel*>()) {
        if (label->isVisible() && label->text().startsWith(u"Nothing matches"_s)) {
            EXPECT_TRUE(label->shownText().startsWith(u"Nothing matches “xxx"_s));
            EXPECT_TRUE(label->shownText().endsWith(u"…”"_s)) << label->shownText().toStdString();
            EXPECT_LE(label->fontMetrics().horizontalAdvance(label->shownText()), label->width());
        }
    }
}

TEST_F(OverlayTest, MessagesAreInTheMiddleOfThePanel) {
    desk.trust();
    desk.show(emptySheet("Terminal"));
    view->resize(1180, 760);
    int found = 0;
    for (const QLabel* label : view->findChildren<QLabel*>()) {
        const bool isMessage =
            label->text().startsWith(u"No menu"_s) || label->text().startsWith(u"Some apps"_s);
        if (!label->isVisible() || !isMessage)
            continue;
        ++found;
        const QPoint middle = label->mapTo(view.get(), label->rect().center());
        EXPECT_NEAR(middle.x(), view->rect().center().x(), 1) << label->text().toStdString();
        EXPECT_TRUE(label->alignment() & Qt::AlignHCenter);
    }
    EXPECT_EQ(found, 2);
}

TEST_F(OverlayTest, APanelOnANarrowScreenIsNotCutOff) {
    desk.trust();
    desk.showSample();
    constexpr int width = 480 * 86 / 100;
    EXPECT_LE(view->minimumSizeHint().width(), width);
    for (const char* const query : {"", "xyz"}) {
        desk.model.setQuery(query);
        view->resize(width, 500);
        QApplication::processEvents();
        EXPECT_EQ(view->width(), width);
        for (const QWidget* child : view->findChildren<QWidget*>()) {
            if (child->isVisible() && !child->isWindow()) {
                const QRect inside(child->mapTo(view.get(), QPoint(0, 0)), child->size());
                EXPECT_TRUE(view->rect().contains(inside)) << child->metaObject()->className();
            }
        }
        EXPECT_GE(view->search().width(), 120);
    }
}

TEST_F(OverlayTest, TheSearchFieldHasItsWidthWhereThereIsRoom) {
    desk.trust();
    AppSheet sheet = SampleMenus::sheet();
    sheet.appName = std::string(300, 'n');
    desk.show(sheet);
    view->resize(1180, 760);
    QApplication::processEvents();
    EXPECT_EQ(view->search().width(), 280);
}

TEST_F(OverlayTest, PinnedShortcutsStandAboveTheirMenus) {
    desk.trust();
    desk.showSample();
    const QStringList read = cards();
    EXPECT_EQ(read[0], u"# Pinned"_s);
    EXPECT_EQ(
        read[1], u"Duplicate, Pinned, You clicked this in the menu 14 times, Makes a copy next to the "
                 u"original, ⇧⌘S"_s);
    EXPECT_EQ(read.count(read[1]), 2);
    type(u"zoom"_s);
    EXPECT_THAT(cards(), Not(Contains(u"# Pinned"_s)));
}

TEST_F(OverlayTest, ASheetWithoutPinsHasNoPinnedCard) {
    desk.trust();
    desk.show(SampleMenus::sheet());
    EXPECT_THAT(cards(), Not(Contains(u"# Pinned"_s)));
    EXPECT_EQ(cards().first(), u"# Sketchpad"_s);
}

TEST_F(OverlayTest, TheFooterNamesTheMostClickedCommand) {
    desk.trust();
    desk.show(SampleMenus::sheet());
    EXPECT_THAT(texts(), Not(Contains(u"You click this one most:"_s)));
    desk.showSample();
    EXPECT_THAT(texts(), Contains(u"You click this one most:"_s));
    EXPECT_THAT(texts(), Contains(u"Duplicate"_s));
    EXPECT_EQ(view->findChild<KeysView*>()->accessibleName(), u"⇧⌘S"_s);
    EXPECT_TRUE(view->findChild<KeysView*>()->isVisible());
}

TEST_F(OverlayTest, AMostClickedCommandThatIsGoneIsNotNamed) {
    desk.trust();
    UsageRecords usage;
    usage["File › Vanished"].clicked = 9;
    desk.model.showSample(SampleMenus::sheet(), std::move(usage), {});
    EXPECT_THAT(texts(), Not(Contains(u"You click this one most:"_s)));
}

TEST_F(OverlayTest, TheFooterTellsHowToClose) {
    desk.trust();
    desk.showSample();
    EXPECT_THAT(texts(), Contains(u"Let go of ⌘ to close · click to keep it open"_s));
    desk.model.keepOverlayOpen();
    EXPECT_THAT(texts(), Contains(u"Esc closes"_s));
}

TEST_F(OverlayTest, TextsOfOtherApplicationsAreNeverMarkup) {
    desk.trust();
    AppSheet sheet = SampleMenus::sheet();
    sheet.appName = "<h1>Big</h1>";
    desk.show(sheet);
    EXPECT_THAT(texts(), Contains(u"<h1>Big</h1>"_s));
    for (const QLabel* label : view->findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(OverlayTest, WhileHiddenItOnlyRemembersThatSomethingChanged) {
    desk.trust();
    desk.showSample();
    const int before = view->area().generation();
    view->hide();
    desk.show(sheetOfMany(100));
    EXPECT_EQ(view->area().generation(), before);
    view->show();
    EXPECT_THAT(texts(), Contains(u"100 shortcuts from its menus"_s));
}

TEST_F(OverlayTest, EachOpeningBeginsAtTheTopWithTheQueryOfTheModel) {
    desk.trust();
    desk.show(sheetOfMany(300));
    view->area().scrollByPage(3);
    type(u"e"_s);
    view->hide();
    desk.model.setQuery({});
    view->show();
    EXPECT_EQ(field().text(), QString());
    EXPECT_EQ(cards().first(), u"# File"_s);
    EXPECT_TRUE(view->area().viewport()->rect().contains(middleOf(0)));
}

TEST_F(OverlayTest, ReadingTheSameMenusAgainRebuildsNothingAndScrollsNowhere) {
    desk.trust();
    desk.desktop.menus.answer("org.example.Writer", {SampleMenus::menuBar(), ReadOutcome::complete});
    desk.beginReading("Writer");
    desk.desktop.background.runAll();
    view->resize(1180, 400);
    view->area().scrollByPage(1);
    const int scrolled = view->area().verticalScrollBar()->value();
    ASSERT_GT(scrolled, 0);
    const int before = view->area().generation();
    const Instant readBefore = desk.model.current()->readAt;
    desk.desktop.clock.advance(Seconds(30));
    desk.beginReading("Writer");
    desk.desktop.background.runAll();
    ASSERT_NE(desk.model.current()->readAt, readBefore);
    EXPECT_EQ(view->area().generation(), before);
    EXPECT_EQ(view->area().verticalScrollBar()->value(), scrolled);
}

TEST_F(OverlayTest, MenusThatHaveChangedAreShown) {
    desk.trust();
    desk.show(sheetOfMany(100));
    desk.show(sheetOfMany(101));
    EXPECT_THAT(texts(), Contains(u"101 shortcuts from its menus"_s));
    type(u"e"_s);
    desk.show(sheetOfMany(102));
    EXPECT_EQ(texts().filter(u" of 102 shortcuts"_s).size(), 1);
}

TEST_F(OverlayTest, AnotherQueryBeginsAtTheTop) {
    desk.trust();
    desk.show(sheetOfMany(300));
    view->area().scrollByPage(2);
    type(u"e"_s);
    EXPECT_EQ(view->area().verticalScrollBar()->value(), 0);
    ASSERT_GT(view->area().verticalScrollBar()->maximum(), 0);
}

TEST_F(OverlayTest, AnotherApplicationBeginsAtTheTop) {
    desk.trust();
    desk.show(sheetOfMany(300));
    view->area().scrollByPage(1);
    AppSheet other = sheetOfMany(300);
    other.bundleID = "org.example.Other";
    desk.show(other);
    EXPECT_EQ(view->area().verticalScrollBar()->value(), 0);
    ASSERT_GT(view->area().verticalScrollBar()->maximum(), 0);
}

TEST_F(OverlayTest, FontsAndColoursFollowTheDesktopWhileItIsOpen) {
    desk.trust();
    desk.showSample();
    const double before = view->area().layout().height;
    desk.desktop.appearance.set({ColourScheme::dark, "DejaVu Sans", 20});
    EXPECT_GT(view->area().layout().height, before);
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    view->render(&image);
    EXPECT_EQ(image.pixelColor(590, 8), Palette::forScheme(ColourScheme::dark).window);
}

TEST_F(OverlayTest, HugeAndTinyFontsStillFitTheSmallestOverlay) {
    desk.trust();
    desk.showSample();
    for (const double points : {5.0, 24.0}) {
        desk.desktop.appearance.set({ColourScheme::light, "DejaVu Sans", points});
        EXPECT_LE(view->minimumSizeHint().width(), 688) << points;
        EXPECT_LE(view->minimumSizeHint().height(), 480) << points;
    }
}

} // namespace
} // namespace quillon
