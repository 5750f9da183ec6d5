#include "overlay_fixture.h"

#include <quillon/kit/menu/sample_menus.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class OverlayAccessibleTest : public OverlayTest {
  protected:
    OverlayAccessibleTest() {
        desk.trust();
        desk.showSample();
    }
    QAccessibleInterface* item(const QString& beginning) const {
        for (int i = 0; i < list()->childCount(); ++i) {
            QAccessibleInterface* child = list()->child(i);
            if (child->text(QAccessible::Name).startsWith(beginning))
                return child;
        }
        return nullptr;
    }
};

TEST_F(OverlayAccessibleTest, TheAreaIsAListOfHeadingsAndRows) {
    EXPECT_EQ(list()->role(), QAccessible::List);
    const QStringList read = cards();
    EXPECT_EQ(read.size(), 59 + 3 + 9 + 4) << "rows, pinned rows, cards, submenus";
    const qsizetype object = read.indexOf(u"# Object"_s);
    ASSERT_GE(object, 0);
    EXPECT_EQ(read[object + 1], u"Group, Pinned, You clicked this in the menu 7 times, ⌥⌘G"_s);
    EXPECT_EQ(read[object + 3], u"# Arrange"_s);
    EXPECT_EQ(read[object + 4], u"Bring to Front, Arrange, You clicked this in the menu 6 times, ⇧⌘]"_s);
    EXPECT_EQ(read[object + 8], u"Lock, ⌘L"_s);
}

TEST_F(OverlayAccessibleTest, RowsAreOneElementEach) {
    QAccessibleInterface* save = item(u"Save"_s);
    ASSERT_NE(save, nullptr);
    EXPECT_EQ(save->role(), QAccessible::ListItem);
    EXPECT_EQ(save->childCount(), 0);
    EXPECT_EQ(save->parent(), list());
    EXPECT_EQ(list()->child(list()->indexOfChild(save)), save);
}

TEST_F(OverlayAccessibleTest, ElementsAreWhereTheyAreDrawn) {
    view->resize(1180, 500);
    QAccessibleInterface* save = item(u"Save"_s);
    const QPoint middle = save->rect().center();
    EXPECT_EQ(list()->childAt(middle.x(), middle.y()), save);
    EXPECT_TRUE(list()->rect().contains(middle));
    EXPECT_FALSE(save->state().offscreen);
    EXPECT_TRUE(item(u"Sketchpad Help"_s)->state().offscreen);
}

TEST_F(OverlayAccessibleTest, RowsTakeTheFocusAndOpenTheirMenu) {
    QAccessibleInterface* save = item(u"Save"_s);
    EXPECT_TRUE(save->state().focusable);
    QAccessibleActionInterface* actions = save->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(save->state().focused);
    EXPECT_EQ(list()->focusChild(), save);
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_NE(rowMenu(), nullptr);
}

/// Every element below and including this one that says that it has the focus.
int focusedIn(QAccessibleInterface* element) {
    int count = element->state().focused ? 1 : 0;
    for (int i = 0; i < element->childCount(); ++i)
        count += focusedIn(element->child(i));
    return count;
}

TEST_F(OverlayAccessibleTest, OneElementHasTheFocus) {
    QAccessibleInterface* root = QAccessible::queryAccessibleInterface(view.get());
    view->search().focus();
    EXPECT_EQ(focusedIn(root), 1);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&field())->state().focused);
    view->area().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focusedIn(root), 1);
    EXPECT_TRUE(list()->focusChild()->state().focused);
}

TEST_F(OverlayAccessibleTest, CommandsThatCannotBeUsedAreDisabled) {
    AppSheet sheet = SampleMenus::sheet();
    const auto save = std::ranges::find(sheet.entries, "Save", &MenuEntry::title);
    save->enabled = false;
    desk.show(sheet);
    EXPECT_TRUE(item(u"Save,"_s)->state().disabled);
    EXPECT_FALSE(item(u"Redo"_s)->state().disabled);
}

TEST_F(OverlayAccessibleTest, ThePanelSaysWhatItIsAndWhose) {
    desk.model.showOverlay(Stickiness::held);
    QAccessibleInterface* panel = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window != view.get() && window->inherits("quillon::FloatingPanelWindow"))
            panel = QAccessible::queryAccessibleInterface(window);
    }
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->role(), QAccessible::Dialog);
    EXPECT_EQ(panel->text(QAccessible::Name), u"Shortcuts for Sketchpad"_s);
}

TEST_F(OverlayAccessibleTest, HeadingsOfferNoActions) {
    EXPECT_EQ(item(u"Object"_s)->role(), QAccessible::Heading);
    EXPECT_EQ(item(u"Object"_s)->actionInterface(), nullptr);
    EXPECT_FALSE(item(u"Object"_s)->state().focusable);
}

TEST_F(OverlayAccessibleTest, ElementsOfAnEarlierContentAreInvalid) {
    QAccessibleInterface* save = item(u"Save"_s);
    const QAccessible::Id id = QAccessible::uniqueId(save);
    type(u"zoom"_s);
    list()->childCount();
    QAccessibleInterface* same = QAccessible::accessibleInterface(id);
    EXPECT_TRUE(same == nullptr || !same->isValid());
    EXPECT_EQ(list()->child(-1), nullptr);
    EXPECT_EQ(list()->child(4000), nullptr);
}

/// Every name in the tree that a reader can come to.
void collect(QAccessibleInterface* element, QStringList& names) {
    if (!element || element->state().invisible)
        return;
    const QString name = element->text(QAccessible::Name);
    if (!name.isEmpty())
        names.append(name);
    for (int i = 0; i < element->childCount(); ++i)
        collect(element->child(i), names);
}

TEST_F(OverlayAccessibleTest, EverythingThatIsDrawnCanBeRead) {
    QStringList names;
    collect(QAccessible::queryAccessibleInterface(view.get()), names);
    for (const QString& expected :
         {u"Sketchpad"_s, u"59 shortcuts from its menus"_s, u"Search shortcuts"_s, u"Pinned"_s,
          u"Let go of ⌘ to close · click to keep it open"_s, u"You click this one most:"_s, u"Duplicate"_s,
          u"⇧⌘S"_s})
        EXPECT_TRUE(names.contains(expected)) << expected.toStdString();
}

TEST_F(OverlayAccessibleTest, MessagesAndTheirButtonsCanBeRead) {
    desk.desktop.access.setTrusted(false);
    desk.model.refreshTrust();
    QStringList names;
    collect(QAccessible::queryAccessibleInterface(view.get()), names);
    EXPECT_TRUE(names.contains(u"Quillon needs Accessibility to read menus"_s));
    EXPECT_TRUE(names.contains(u"Show Me How"_s));
}

TEST_F(OverlayAccessibleTest, DecorationIsHidden) {
    for (QWidget* icon : view->findChildren<QWidget*>()) {
        if (qobject_cast<SymbolView*>(icon) || qobject_cast<AppIconView*>(icon)) {
            EXPECT_TRUE(QAccessible::queryAccessibleInterface(icon)->state().invisible);
        }
    }
}

} // namespace
} // namespace quillon
