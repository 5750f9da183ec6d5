#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/search_box.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class SearchBoxTest : public testing::Test {
  protected:
    SearchBoxTest() {
        box.resize(280, box.sizeHint().height());
        box.show();
        EXPECT_TRUE(makeActive(box));
        box.focus();
    }
    QLineEdit& field() { return *box.findChild<QLineEdit*>(); }
    QToolButton& clearButton() { return *box.findChild<QToolButton*>(); }

    FakeAppearance appearance;
    ThemeSource themes{appearance};
    SearchBox box{themes, u"Search shortcuts"_s};
    QSignalSpy edited{&box, &SearchBox::textEdited};
};

TEST_F(SearchBoxTest, ShowsItsPromptWhileEmpty) {
    EXPECT_EQ(field().placeholderText(), u"Search shortcuts"_s);
    EXPECT_EQ(field().accessibleName(), u"Search shortcuts"_s);
}

TEST_F(SearchBoxTest, TheClearButtonComesWithTheFirstCharacterAndGoesWithTheLast) {
    EXPECT_FALSE(clearButton().isVisible());
    QTest::keyClicks(&field(), u"c"_s);
    EXPECT_TRUE(clearButton().isVisible());
    QTest::keyClick(&field(), Qt::Key_Backspace);
    EXPECT_FALSE(clearButton().isVisible());
}

TEST_F(SearchBoxTest, TypingTellsEachText) {
    QTest::keyClicks(&field(), u"cmd"_s);
    ASSERT_EQ(edited.count(), 3);
    EXPECT_EQ(edited.last().first().toString(), u"cmd"_s);
}

TEST_F(SearchBoxTest, ClearingEmptiesTheFieldAndKeepsTheFocus) {
    QTest::keyClicks(&field(), u"cmd s"_s);
    QTest::mouseClick(&clearButton(), Qt::LeftButton);
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(edited.last().first().toString(), QString());
    EXPECT_TRUE(box.isFocused());
}

TEST_F(SearchBoxTest, TheClearButtonSaysWhatItDoes) {
    QTest::keyClicks(&field(), u"c"_s);
    const QAccessibleInterface* button = QAccessible::queryAccessibleInterface(&clearButton());
    EXPECT_EQ(button->text(QAccessible::Name), u"Clear search"_s);
}

TEST_F(SearchBoxTest, TextThatTheProgramSetsIsNotTyped) {
    box.setText(u"from elsewhere"_s);
    EXPECT_EQ(box.text(), u"from elsewhere"_s);
    EXPECT_EQ(edited.count(), 0);
    EXPECT_TRUE(clearButton().isVisible());
}

TEST_F(SearchBoxTest, AKeyFromElsewhereIsTypedIntoIt) {
    box.clearFocus();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
    box.type(&press);
    EXPECT_EQ(box.text(), u"x"_s);
    EXPECT_TRUE(box.isFocused());
}

TEST_F(SearchBoxTest, TheMagnifierIsNotReadAloud) {
    const QAccessibleInterface* icon = QAccessible::queryAccessibleInterface(box.findChild<SymbolView*>());
    EXPECT_TRUE(icon->state().invisible);
    EXPECT_EQ(icon->text(QAccessible::Name), QString());
}

} // namespace
} // namespace quillon
