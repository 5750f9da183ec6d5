#include "practice_fixture.h"

#include <QImage>
#include <QScrollArea>
#include <QScrollBar>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class PracticeResultsTest : public PracticeViewTest {
  protected:
    QScrollArea& missed() const { return *view->findChild<QScrollArea*>(); }
    /// A round of so many commands, all of them missed, up to its results.
    void missAll(int count) {
        std::vector<RawMenuItem> items;
        for (int number = 0; number < count; ++number)
            items.push_back(command(("Command " + std::to_string(number)).c_str(), "S"));
        read(2, "Writer", menusWith(items));
        open();
        press(Qt::Key_Return);
        for (int number = 0; number < count; ++number) {
            press(Qt::Key_X, Qt::ControlModifier);
            press(Qt::Key_Return);
        }
        ASSERT_TRUE(view->round().isOver());
        QApplication::processEvents();
    }
};

TEST_F(PracticeResultsTest, ACleanRoundHasNoListOfWhatWasMissed) {
    readWriter();
    open();
    press(Qt::Key_Return);
    press(Qt::Key_S, Qt::ControlModifier);
    press(Qt::Key_Return);
    press(Qt::Key_Q, Qt::ControlModifier);
    press(Qt::Key_Return);
    EXPECT_FALSE(missed().isVisible());
}

TEST_F(PracticeResultsTest, AShortListOfWhatWasMissedTakesNoKeyboard) {
    missAll(2);
    EXPECT_TRUE(missed().isVisible());
    EXPECT_EQ(missed().accessibleName(), u"These come up more next time:"_s);
    EXPECT_EQ(missed().focusPolicy(), Qt::NoFocus);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &appPicker());
}

TEST_F(PracticeResultsTest, ALongListOfWhatWasMissedShowsThatItHasTheKeyboard) {
    missAll(20);
    ASSERT_GT(missed().verticalScrollBar()->maximum(), 0);
    const QImage before = missed().grab().toImage();
    missed().setFocus();
    ASSERT_TRUE(missed().hasFocus());
    EXPECT_NE(missed().grab().toImage(), before);
    press(Qt::Key_Down);
    EXPECT_GT(missed().verticalScrollBar()->value(), 0);
}

} // namespace
} // namespace quillon
