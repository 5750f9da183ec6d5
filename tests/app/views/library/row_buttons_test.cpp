#include "library_fixture.h"

#include <gmock/gmock.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::Not;

class RowButtonsTest : public LibraryTest {
  protected:
    RowButtonsTest() {
        readApp(desk, sheetOf("Geany", {"Save", "Open"}));
        choose(0);
    }
    const LibraryRow& row(int number) const { return detail().rows().row(detail().rows().index(number)); }
    void focus(int number) {
        ASSERT_TRUE(makeActive(view));
        detail().setFocus();
        detail().setCurrentIndex(detail().model()->index(number, 0));
    }
    void press(Qt::Key key) { QTest::keyClick(&detail(), key); }
};

TEST_F(RowButtonsTest, AClickPinsAndUnpins) {
    click(rowOf("Save"), RowButton::pin);
    EXPECT_TRUE(said("Geany", "Save").pinned);
    EXPECT_FALSE(said("Geany", "Open").pinned);
    settle();
    EXPECT_TRUE(row(rowOf("Save")).pinned);
    click(rowOf("Save"), RowButton::pin);
    EXPECT_FALSE(said("Geany", "Save").pinned);
}

TEST_F(RowButtonsTest, AClickMutesAndKeepsPinAndNote) {
    desk.model.togglePin("org.example.Geany", "File › Save");
    desk.model.setNote("org.example.Geany", "File › Save", "often");
    settle();
    click(rowOf("Save"), RowButton::mute);
    EXPECT_EQ(said("Geany", "Save"), (Annotation{.pinned = true, .note = "often", .muted = true}));
    settle();
    click(rowOf("Save"), RowButton::mute);
    EXPECT_FALSE(said("Geany", "Save").muted);
}

TEST_F(RowButtonsTest, TwoQuickClicksAreTwo) {
    const QPoint pin = detail().buttonRect(rowOf("Save"), RowButton::pin).center();
    QWidget& list = *detail().viewport();
    QTest::mouseClick(&list, Qt::LeftButton, {}, pin);
    QTest::mouseDClick(&list, Qt::LeftButton, {}, pin);
    EXPECT_TRUE(said("Geany", "Save").pinned) << "a double click here is a press and a release";
}

TEST_F(RowButtonsTest, LettingGoElsewherePressesNothing) {
    const int save = rowOf("Save");
    QWidget& list = *detail().viewport();
    QTest::mousePress(&list, Qt::LeftButton, {}, detail().buttonRect(save, RowButton::pin).center());
    QTest::mouseRelease(&list, Qt::LeftButton, {}, detail().buttonRect(save, RowButton::mute).center());
    EXPECT_TRUE(said("Geany", "Save").isEmpty());
    QTest::mouseClick(&list, Qt::RightButton, {}, detail().buttonRect(save, RowButton::pin).center());
    EXPECT_TRUE(said("Geany", "Save").isEmpty());
}

TEST_F(RowButtonsTest, RightGoesToTheButtonsAndSpaceOrReturnPresses) {
    focus(rowOf("Save"));
    press(Qt::Key_Space);
    EXPECT_TRUE(said("Geany", "Save").isEmpty()) << "the row itself is no button";
    press(Qt::Key_Right);
    EXPECT_EQ(detail().currentButton(), RowButton::pin);
    press(Qt::Key_Space);
    EXPECT_TRUE(said("Geany", "Save").pinned);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(detail().currentButton(), RowButton::mute) << "there is none behind it";
    press(Qt::Key_Return);
    EXPECT_TRUE(said("Geany", "Save").muted);
    for (int steps = 0; steps < 4; ++steps)
        press(Qt::Key_Left);
    EXPECT_EQ(detail().currentButton(), std::nullopt);
}

TEST_F(RowButtonsTest, TheKeyboardStaysInItsColumn) {
    focus(rowOf("Save"));
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Up); // the heading, which has no buttons
    EXPECT_EQ(detail().currentButton(), std::nullopt);
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(detail().currentIndex().row(), rowOf("Open"));
    EXPECT_EQ(detail().currentButton(), RowButton::note);
}

TEST_F(RowButtonsTest, WhereReadingRunsTheOtherWayLeftGoesToTheButtons) {
    view.setLayoutDirection(Qt::RightToLeft);
    const int save = rowOf("Save");
    EXPECT_LT(
        detail().buttonRect(save, RowButton::mute).left(), detail().buttonRect(save, RowButton::pin).left());
    focus(save);
    press(Qt::Key_Left);
    EXPECT_EQ(detail().currentButton(), RowButton::pin);
    click(save, RowButton::mute);
    EXPECT_TRUE(said("Geany", "Save").muted);
}

TEST_F(RowButtonsTest, TheCommandToLearnHasThemToo) {
    desk.model.handlePick(
        {2, "org.example.Geany", "Geany", {}}, {"File", "Open"}, {Modifiers::control, Key::character("S")});
    settle();
    ASSERT_EQ(row(3).text, u"Open"_s);
    ASSERT_TRUE(row(3).isToLearn);
    click(3, RowButton::pin);
    settle();
    EXPECT_TRUE(row(3).pinned);
    EXPECT_TRUE(row(rowOf("Open")).pinned) << "and its row in the menu says the same";
}

TEST_F(RowButtonsTest, TheCurrentRowAndTheScrolledPlaceOutliveWhatComesAndGoes) {
    std::vector<std::string> commands;
    for (int number = 0; number < 200; ++number)
        commands.push_back("Command " + std::to_string(number));
    readApp(desk, sheetOf("Geany", commands));
    settle();
    focus(rowOf("Command 100"));
    press(Qt::Key_Right);
    const int top = detail().visualRect(detail().currentIndex()).top();
    desk.model.handlePick(
        {2, "org.example.Geany", "Geany", {}}, {"File", "Command 7"},
        {Modifiers::control, Key::character("S")});
    settle();
    ASSERT_THAT(rows(detail()), Contains("Learn these next"));
    EXPECT_EQ(detail().currentIndex().data().toString(), u"Command 100"_s);
    EXPECT_EQ(detail().currentButton(), RowButton::pin);
    EXPECT_EQ(detail().visualRect(detail().currentIndex()).top(), top);
    desk.model.setNote("org.example.Geany", "File › Command 100", "a hundred");
    settle();
    EXPECT_EQ(detail().visualRect(detail().currentIndex()).top(), top);
}

TEST_F(RowButtonsTest, LongTextsOverlapNothing) {
    AppSheet sheet = sheetOf("Geany", {std::string(300, 'W')});
    sheet.entries[0].shortcut.modifiers = Modifiers::control | Modifiers::shift | Modifiers::option;
    readApp(desk, sheet);
    desk.model.setNote("org.example.Geany", sheet.entries[0].id(), std::string(10'000, 'x'));
    desk.model.setKeyLabels(KeyLabels::names);
    settle();
    view.resize(view.minimumSizeHint());
    LibraryRowLayout layout(desk.themes.theme());
    layout.makeRoomForKeys(detail().rows().rows());
    LibraryRow long_ = row(3);
    long_.counts = u"123456 clicked · 123456 typed"_s;
    const QRect box = layout.boxOf(detail().visualRect(detail().rows().index(3)));
    const CommandPlaces places = layout.placesOf(long_, box);
    std::vector<QRect> parts{places.title, places.note, places.counts, places.keys};
    parts.insert(parts.end(), places.buttons.begin(), places.buttons.end());
    for (std::size_t one = 0; one < parts.size(); ++one) {
        EXPECT_TRUE(box.contains(parts[one])) << one;
        EXPECT_FALSE(parts[one].isEmpty()) << one;
        for (std::size_t other = one + 1; other < parts.size(); ++other)
            EXPECT_FALSE(parts[one].intersects(parts[other])) << one << " and " << other;
    }
    EXPECT_GT(places.title.width(), 60);
}

class RowAccessibleTest : public RowButtonsTest {
  protected:
    QAccessibleInterface& list() const { return *QAccessible::queryAccessibleInterface(&detail()); }
    QAccessibleInterface& part(const std::string& title, RowButton button) const {
        return *list().child(rowOf(title))->child(static_cast<int>(positionOf(button)));
    }
    static QString nameOf(const QAccessibleInterface& part) { return part.text(QAccessible::Name); }
    static QString helpOf(const QAccessibleInterface& part) { return part.text(QAccessible::Description); }
    static void pressIt(QAccessibleInterface& part) {
        part.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
};

TEST_F(RowAccessibleTest, ButtonsSayWhatTheyAreAndDo) {
    EXPECT_EQ(list().child(rowOf("Save"))->childCount(), 3);
    EXPECT_EQ(list().child(0)->childCount(), 0) << "statistics have none";
    EXPECT_EQ(list().child(2)->role(), QAccessible::Heading);
    EXPECT_EQ(nameOf(part("Save", RowButton::pin)), u"Pin Save"_s);
    EXPECT_EQ(helpOf(part("Save", RowButton::pin)), u"Pin to the top of the overlay and cheat sheet"_s);
    EXPECT_EQ(nameOf(part("Save", RowButton::note)), u"Note for Save"_s);
    EXPECT_EQ(helpOf(part("Save", RowButton::note)), u"Add a note"_s);
    EXPECT_EQ(nameOf(part("Save", RowButton::mute)), u"Turn nudges off for Save"_s);
    EXPECT_EQ(helpOf(part("Save", RowButton::mute)), u"Nudge me when I click this in the menu"_s);
    EXPECT_EQ(part("Save", RowButton::pin).role(), QAccessible::Button);
}

TEST_F(RowAccessibleTest, PressedOverTheBusTheySayTheOpposite) {
    QAccessibleInterface& pin = part("Save", RowButton::pin);
    pressIt(pin);
    pressIt(part("Save", RowButton::mute));
    settle();
    EXPECT_TRUE(said("Geany", "Save").pinned);
    EXPECT_TRUE(said("Geany", "Save").muted);
    EXPECT_TRUE(pin.isValid());
    EXPECT_EQ(nameOf(pin), u"Unpin Save"_s);
    EXPECT_EQ(helpOf(pin), u"Unpin"_s);
    EXPECT_EQ(nameOf(part("Save", RowButton::mute)), u"Turn nudges on for Save"_s);
    EXPECT_EQ(nameOf(*list().child(rowOf("Save"))), u"Save, ⌃S, pinned, nudges off"_s);
}

TEST_F(RowAccessibleTest, PartsAreWhereTheyAreDrawnAndFoundThere) {
    QAccessibleInterface* const row = list().child(rowOf("Save"));
    QAccessibleInterface& pin = part("Save", RowButton::pin);
    EXPECT_TRUE(row->rect().contains(pin.rect()));
    const QPoint middle = pin.rect().center();
    EXPECT_EQ(list().childAt(middle.x(), middle.y()), row);
    EXPECT_EQ(row->childAt(middle.x(), middle.y()), &pin);
    EXPECT_EQ(pin.parent(), row);
    EXPECT_EQ(row->parent(), &list());
    EXPECT_EQ(row->indexOfChild(&pin), 0);
    EXPECT_EQ(list().indexOfChild(row), rowOf("Save"));
}

TEST_F(RowAccessibleTest, TheFocusIsWhereTheKeyboardIs) {
    focus(rowOf("Save"));
    EXPECT_EQ(list().focusChild(), list().child(rowOf("Save")));
    EXPECT_TRUE(list().focusChild()->state().focused);
    press(Qt::Key_Right);
    QAccessibleInterface& pin = part("Save", RowButton::pin);
    EXPECT_EQ(list().focusChild(), &pin);
    EXPECT_TRUE(pin.state().focused);
    EXPECT_FALSE(list().child(rowOf("Save"))->state().focused);
    part("Open", RowButton::mute).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(detail().currentIndex().row(), rowOf("Open"));
    EXPECT_EQ(detail().currentButton(), RowButton::mute);
}

TEST_F(RowAccessibleTest, WhatIsGoneIsInvalid) {
    QAccessibleInterface& gone = part("Open", RowButton::pin);
    const QAccessible::Id id = QAccessible::uniqueId(&gone);
    readApp(desk, sheetOf("Geany", {"Save"}));
    settle();
    EXPECT_EQ(list().childCount(), 4);
    list().child(0);
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

} // namespace
} // namespace quillon
