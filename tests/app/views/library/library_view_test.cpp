#include "library_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QSplitter>
#include <QTest>

#include <string>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::UnorderedElementsAre;

using LibraryViewTest = LibraryTest;

TEST_F(LibraryViewTest, WithoutAppsItSaysWhatToDo) {
    EXPECT_THAT(
        visibleTexts(),
        UnorderedElementsAre("No apps yet", "Hold ⌘ in any app; its shortcuts show up here.", "Pick an app"));
    desk.model.setTrigger(TriggerKey::control);
    EXPECT_THAT(visibleTexts(), Contains("Hold ⌃ in any app; its shortcuts show up here."));
    desk.model.setKeyLabels(KeyLabels::names);
    EXPECT_THAT(visibleTexts(), Contains("Hold Ctrl in any app; its shortcuts show up here."));
}

TEST_F(LibraryViewTest, TheKeyboardIsWhereThereIsSomethingToDo) {
    ASSERT_TRUE(makeActive(view));
    view.setFocus();
    EXPECT_TRUE(field().hasFocus()) << "no app is there to be chosen";
    readApp(desk, sheetOf("Geany", {"Save"}));
    view.setFocus();
    EXPECT_TRUE(apps().hasFocus());
}

TEST_F(LibraryViewTest, ListsWhatWasRead) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    EXPECT_THAT(rows(apps()), ElementsAre("Geany"));
    EXPECT_THAT(visibleTexts(), ElementsAre("Pick an app"));
}

TEST_F(LibraryViewTest, ShowsTheAppThatIsChosen) {
    readApp(desk, sheetOf("Geany", {"Save", "Open"}));
    readApp(desk, sheetOf("Mousepad", {"Close"}));
    choose(0);
    EXPECT_EQ(view.selection(), "org.example.Geany");
    EXPECT_THAT(rows(detail()), Contains("Open"));
    EXPECT_EQ(detail().accessibleName(), u"Shortcuts of Geany"_s);
    choose(1);
    EXPECT_THAT(rows(detail()), Contains("Close"));
    EXPECT_THAT(rows(detail()), Not(Contains("Open")));
}

TEST_F(LibraryViewTest, CountsFollowTheUser) {
    readApp(desk, sheetOf("Sketchpad", {"Save"}));
    choose(0);
    EXPECT_THAT(rows(detail()), Contains("0 menu clicks"));
    desk.model.handlePick(
        {2, "org.example.Sketchpad", "Sketchpad", {}}, {"File", "Save"},
        {Modifiers::control, Key::character("S")});
    settle();
    EXPECT_THAT(rows(detail()), Contains("1 menu clicks"));
    EXPECT_THAT(rows(detail()), Contains("Learn these next"));
}

TEST_F(LibraryViewTest, TheChoiceStaysWhenOthersAreRead) {
    readApp(desk, sheetOf("Mousepad", {"Close"}));
    choose(0);
    readApp(desk, sheetOf("Geany", {"Save"}));
    EXPECT_EQ(view.selection(), "org.example.Mousepad");
    EXPECT_EQ(apps().currentIndex().data().toString(), u"Mousepad"_s);
    EXPECT_THAT(rows(detail()), Contains("Close"));
}

TEST_F(LibraryViewTest, ErasingEmptiesIt) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    choose(0);
    desk.model.eraseEverything();
    settle();
    EXPECT_THAT(visibleTexts(), Contains("No apps yet"));
    EXPECT_THAT(visibleTexts(), Contains("Pick an app"));
}

TEST_F(LibraryViewTest, SearchNarrowsTheList) {
    readApp(desk, sheetOf("Geany", {"Save", "Open"}));
    choose(0);
    EXPECT_EQ(field().placeholderText(), u"Search shortcuts"_s);
    QTest::keyClicks(&field(), u"open"_s);
    EXPECT_THAT(rows(detail()), Contains("Open"));
    EXPECT_THAT(rows(detail()), Not(Contains("Save")));
    field().selectAll();
    QTest::keyClick(&field(), Qt::Key_Delete);
    EXPECT_THAT(rows(detail()), Contains("Save"));
}

TEST_F(LibraryViewTest, NothingIsChosenUntilTheUserDoes) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    ASSERT_TRUE(makeActive(view));
    view.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(apps().hasFocus());
    EXPECT_EQ(view.selection(), "");
    EXPECT_THAT(visibleTexts(), Contains("Pick an app"));
}

TEST_F(LibraryViewTest, TheArrowKeysChoose) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    readApp(desk, sheetOf("Mousepad", {"Close"}));
    ASSERT_TRUE(makeActive(view));
    view.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&apps(), Qt::Key_Down);
    EXPECT_EQ(view.selection(), "org.example.Geany");
    QTest::keyClick(&apps(), Qt::Key_Down);
    EXPECT_EQ(view.selection(), "org.example.Mousepad");
    QTest::keyClick(&apps(), Qt::Key_Up);
    EXPECT_EQ(view.selection(), "org.example.Geany");
}

TEST_F(LibraryViewTest, AClickBesideTheAppsChoosesNone) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    choose(0);
    QTest::mouseClick(apps().viewport(), Qt::LeftButton, {}, {10, apps().viewport()->height() - 5});
    EXPECT_EQ(view.selection(), "");
    EXPECT_THAT(visibleTexts(), Contains("Pick an app"));
}

TEST_F(LibraryViewTest, TabReachesEverything) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    choose(0);
    ASSERT_TRUE(makeActive(view));
    apps().setFocus();
    QStringList reached;
    for (int tabs = 0; tabs < 5; ++tabs) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QAccessibleInterface* const focused =
            QAccessible::queryAccessibleInterface(QApplication::focusWidget());
        reached << focused->text(QAccessible::Name);
    }
    EXPECT_EQ(
        reached,
        (QStringList{
            u"Search shortcuts"_s, u"Practice"_s, u"Cheat Sheet"_s, u"Shortcuts of Geany"_s, u"Apps"_s}));
    EXPECT_EQ(detail().currentIndex().row(), 0) << "where the keyboard is can be seen";
}

TEST_F(LibraryViewTest, CtrlFGoesToTheSearchFromAnywhere) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    choose(0);
    ASSERT_TRUE(makeActive(view));
    for (QWidget* const from : {static_cast<QWidget*>(&detail()), static_cast<QWidget*>(&apps())}) {
        from->setFocus();
        QTest::keyClick(from, Qt::Key_F, Qt::ControlModifier);
        EXPECT_EQ(QApplication::focusWidget(), &field());
    }
}

TEST_F(LibraryViewTest, EscTakesTheSearchBack) {
    readApp(desk, sheetOf("Geany", {"Save", "Open"}));
    choose(0);
    QTest::keyClicks(&field(), u"open"_s);
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_EQ(field().text(), QString());
    EXPECT_THAT(rows(detail()), Contains("Save"));
}

TEST_F(LibraryViewTest, RowsAreReadAloudWithTheirKeys) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    choose(0);
    const QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&detail());
    ASSERT_TRUE(list);
    EXPECT_EQ(list->text(QAccessible::Name), u"Shortcuts of Geany"_s);
    ASSERT_EQ(list->childCount(), 4);
    EXPECT_EQ(list->child(2)->text(QAccessible::Name), u"File"_s);
    EXPECT_EQ(list->child(3)->text(QAccessible::Name), u"Save, ⌃S"_s);
    desk.model.setKeyLabels(KeyLabels::names);
    EXPECT_EQ(list->child(3)->text(QAccessible::Name), u"Save, Ctrl S"_s);
    const QAccessibleInterface* const sidebar = QAccessible::queryAccessibleInterface(&apps());
    EXPECT_EQ(sidebar->text(QAccessible::Name), u"Apps"_s);
    EXPECT_EQ(sidebar->child(0)->text(QAccessible::Name), u"Geany, 1 shortcuts"_s);
}

TEST_F(LibraryViewTest, WhatPartsItIsNotReadAloud) {
    const auto handles = view.findChildren<QSplitterHandle*>();
    ASSERT_FALSE(handles.isEmpty());
    for (QSplitterHandle* const handle : handles)
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(handle)->state().invisible);
}

TEST_F(LibraryViewTest, TheAgeOfTheSheetIsThatOfTheMomentItIsLookedAt) {
    AppSheet sheet = sheetOf("Geany", {"Save"});
    sheet.readAt = desk.desktop.clock.now();
    readApp(desk, std::move(sheet));
    choose(0);
    EXPECT_THAT(rows(detail()), Contains("1 shortcuts · menus read now"));
    desk.desktop.clock.advance(Seconds(7200));
    view.hide();
    view.show();
    settle();
    EXPECT_THAT(rows(detail()), Contains("1 shortcuts · menus read 2 hours ago"));
}

TEST_F(LibraryViewTest, ASheetThatWasReadAnewIsShown) {
    readApp(desk, sheetOf("Geany", {"Save"}));
    choose(0);
    readApp(desk, sheetOf("Geany", {"Save", "Revert"}));
    settle();
    EXPECT_THAT(rows(detail()), Contains("Revert"));
    EXPECT_EQ(view.selection(), "org.example.Geany");
}

TEST_F(LibraryViewTest, ManyRowsAreDrawnWithoutAWidgetEach) {
    std::vector<std::string> commands;
    for (int number = 0; number < 4000; ++number)
        commands.push_back("Command " + std::to_string(number));
    readApp(desk, sheetOf("Geany", commands));
    choose(0);
    settle();
    EXPECT_LT(view.findChildren<QWidget*>().size(), 60);
    EXPECT_EQ(detail().model()->rowCount(), 4003);
}

TEST_F(LibraryViewTest, FollowsTheTheme) {
    desk.desktop.appearance.set({ColourScheme::dark, {}, {}});
    EXPECT_EQ(detail().palette().color(QPalette::Base), desk.themes.theme().palette.window);
    EXPECT_EQ(apps().palette().color(QPalette::Base), desk.themes.theme().palette.card);
}

} // namespace
} // namespace quillon
