#include "overlay_fixture.h"

#include <quillon/kit/menu/sample_menus.h>

#include <QScrollBar>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class OverlayKeyboardTest : public OverlayTest {
  protected:
    OverlayKeyboardTest() {
        desk.trust();
        desk.showSample();
        desk.model.keepOverlayOpen();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    QString currentRow() const {
        const auto current = view->area().currentRow();
        return current ? view->area().spokenRow(*current).section(u',', 0, 0) : QString();
    }
    bool isVisible(std::size_t position) const {
        return view->area().viewport()->rect().contains(
            view->area().visualRect(view->area().layout().rows[position].rect));
    }
};

TEST_F(OverlayKeyboardTest, TheSearchFieldHasTheFocusFirstThenTheRows) {
    EXPECT_TRUE(view->search().isFocused());
    press(Qt::Key_Tab);
    EXPECT_TRUE(view->area().hasFocus());
    EXPECT_EQ(currentRow(), u"Duplicate"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(view->search().isFocused());
}

TEST_F(OverlayKeyboardTest, DownFromTheSearchFieldEntersTheRows) {
    press(Qt::Key_Down);
    EXPECT_TRUE(view->area().hasFocus());
    EXPECT_EQ(currentRow(), u"Duplicate"_s);
}

TEST_F(OverlayKeyboardTest, ArrowsMoveAmongRows) {
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    EXPECT_EQ(currentRow(), u"Paste in Place"_s);
    press(Qt::Key_Left);
    press(Qt::Key_Down);
    EXPECT_EQ(currentRow(), u"Settings…"_s);
    press(Qt::Key_Down);
    EXPECT_EQ(currentRow(), u"Hide Sketchpad"_s);
    press(Qt::Key_Right);
    EXPECT_EQ(currentRow(), u"New from Template…"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(currentRow(), u"New Drawing"_s);
}

TEST_F(OverlayKeyboardTest, TheCurrentRowIsScrolledIntoView) {
    press(Qt::Key_Tab);
    press(Qt::Key_End);
    EXPECT_TRUE(isVisible(*view->area().currentRow()));
    EXPECT_EQ(currentRow(), u"Enter Full Screen"_s) << "the lowest of all columns";
    press(Qt::Key_Home);
    EXPECT_TRUE(isVisible(*view->area().currentRow()));
    EXPECT_EQ(currentRow(), u"Duplicate"_s);
    for (int i = 0; i < 40; ++i) {
        press(Qt::Key_Down);
        EXPECT_TRUE(isVisible(*view->area().currentRow()));
    }
}

TEST_F(OverlayKeyboardTest, PagesMoveByWhatIsVisible) {
    desk.show(sheetOfMany(300));
    press(Qt::Key_Tab);
    const std::size_t first = *view->area().currentRow();
    press(Qt::Key_PageDown);
    const std::size_t second = *view->area().currentRow();
    EXPECT_GT(
        view->area().layout().rows[second].rect.top(), view->area().layout().rows[first].rect.top() + 300);
    EXPECT_TRUE(isVisible(second));
    press(Qt::Key_PageUp);
    EXPECT_TRUE(isVisible(*view->area().currentRow()));
    EXPECT_LE(*view->area().currentRow(), first + 2);
}

TEST_F(OverlayKeyboardTest, PagesScrollFromTheSearchFieldToo) {
    desk.show(sheetOfMany(300));
    const int before = view->area().visualRect(view->area().layout().rows[0].rect).top();
    press(Qt::Key_PageDown);
    EXPECT_LT(view->area().visualRect(view->area().layout().rows[0].rect).top(), before);
    EXPECT_TRUE(view->search().isFocused());
    press(Qt::Key_PageUp);
    EXPECT_EQ(view->area().visualRect(view->area().layout().rows[0].rect).top(), before);
}

TEST_F(OverlayKeyboardTest, TypingInTheRowsGoesToTheSearchField) {
    press(Qt::Key_Tab);
    QTest::keyClicks(&view->area(), u"z"_s);
    EXPECT_TRUE(view->search().isFocused());
    EXPECT_EQ(desk.model.query(), "z");
    QTest::keyClicks(QApplication::focusWidget(), u"oom"_s);
    EXPECT_EQ(desk.model.query(), "zoom");
}

TEST_F(OverlayKeyboardTest, BackspaceInTheRowsEditsTheSearch) {
    QTest::keyClicks(&field(), u"zo"_s);
    press(Qt::Key_Tab);
    ASSERT_TRUE(view->area().hasFocus());
    press(Qt::Key_Backspace);
    EXPECT_TRUE(view->search().isFocused());
    EXPECT_EQ(desk.model.query(), "z");
}

TEST_F(OverlayKeyboardTest, UpFromTheFirstRowGoesBackToTheSearchField) {
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    ASSERT_TRUE(view->area().hasFocus());
    press(Qt::Key_Up);
    EXPECT_TRUE(view->search().isFocused());
}

TEST_F(OverlayKeyboardTest, EndGoesToTheBottom) {
    desk.show(sheetOfMany(300));
    press(Qt::Key_Tab);
    press(Qt::Key_End);
    const QScrollBar& bar = *view->area().verticalScrollBar();
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_TRUE(isVisible(*view->area().currentRow()));
    press(Qt::Key_Home);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(OverlayKeyboardTest, ControlFGoesToTheSearchField) {
    press(Qt::Key_Tab);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(view->search().isFocused());
    EXPECT_EQ(desk.model.query(), "");
}

TEST_F(OverlayKeyboardTest, TheMenuKeyAndShiftF10OpenTheRowsMenu) {
    press(Qt::Key_Tab);
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_THAT(menuItems(), ElementsAre(u"Unpin"_s, u"Open in Library"_s));
    rowMenu()->close();
    press(Qt::Key_Down);
    press(Qt::Key_Menu);
    EXPECT_THAT(menuItems(), ElementsAre(u"Pin"_s, u"Open in Library"_s));
}

TEST_F(OverlayKeyboardTest, PinningByKeyboardKeepsTheRow) {
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    ASSERT_EQ(currentRow(), u"Settings…"_s);
    press(Qt::Key_Menu);
    choose(u"Pin"_s);
    EXPECT_TRUE(desk.model.annotations().get(SampleMenus::bundleID, "Sketchpad › Settings…").pinned);
    EXPECT_EQ(currentRow(), u"Settings…"_s);
    EXPECT_EQ(view->area().layout().rows[*view->area().currentRow()].submenu, SubmenuInRow::hidden)
        << "the row in its menu, not the one among the pinned";
}

TEST_F(OverlayKeyboardTest, UnpinningTheLastRowOfACardLeavesAnotherRowCurrent) {
    press(Qt::Key_Tab);
    press(Qt::Key_Menu);
    choose(u"Unpin"_s);
    EXPECT_TRUE(view->area().currentRow().has_value());
}

TEST_F(OverlayKeyboardTest, EscapeIsLeftToThePanel) {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&view->area(), &escape);
    EXPECT_FALSE(escape.isAccepted());
    QKeyEvent inField(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&field(), &inField);
    EXPECT_FALSE(inField.isAccepted());
}

TEST_F(OverlayKeyboardTest, TheButtonOfAMessageIsReachedByTab) {
    desk.desktop.access.setTrusted(false);
    desk.model.refreshTrust();
    view->search().focus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(view->findChild<QPushButton*>()->hasFocus());
}

TEST_F(OverlayKeyboardTest, TheFocusedRowIsRinged) {
    const auto ringPixels = [&] {
        QImage image(view->area().viewport()->size(), QImage::Format_ARGB32_Premultiplied);
        view->area().viewport()->render(&image);
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == desk.themes.theme().palette.focusRing ? 1 : 0;
        }
        return count;
    };
    const int before = ringPixels();
    press(Qt::Key_Tab);
    EXPECT_GT(ringPixels(), before + 300);
}

} // namespace
} // namespace quillon
