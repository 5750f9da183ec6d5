#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/step_slider.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include <cmath>
#include <vector>

namespace quillon {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

class StepSliderTest : public testing::Test {
  protected:
    StepSliderTest() {
        slider.resize(slider.sizeHint());
        slider.show();
        QObject::connect(&slider, &StepSlider::chosen, [this](double number) { chosen.push_back(number); });
    }

    std::vector<double> chosenAfter(double stored, const std::vector<Qt::Key>& keys) {
        slider.setNumber(stored);
        chosen.clear();
        for (const Qt::Key key : keys)
            QTest::keyClick(&slider, key);
        return chosen;
    }
    /// Where the handle is for a number, its groove being 12 away from both ends.
    QPoint placeOf(double number) const {
        const double part = (number - 0.3) / 1.7;
        return {static_cast<int>(std::lround(12 + part * (slider.width() - 24))), slider.height() / 2};
    }

    FakeAppearance appearance;
    ThemeSource themes{appearance};
    StepSlider slider{
        themes, {.first = 3, .last = 20}, [](double number) { return QString::number(number); }};
    std::vector<double> chosen;
};

TEST_F(StepSliderTest, KeysGoFromTenthToTenth) {
    EXPECT_THAT(chosenAfter(0.8, {Qt::Key_Right, Qt::Key_Right}), ElementsAre(0.9, 1.0));
    EXPECT_THAT(chosenAfter(0.8, {Qt::Key_Left}), ElementsAre(0.7));
    EXPECT_THAT(chosenAfter(0.8, {Qt::Key_PageUp}), ElementsAre(1.0));
}

TEST_F(StepSliderTest, ANumberIsShownWithoutBeingChosen) {
    EXPECT_THAT(chosenAfter(1.3, {}), IsEmpty());
    EXPECT_EQ(slider.number(), 1.3);
}

TEST_F(StepSliderTest, FromBetweenTwoTenthsKeysGoToTheNextOnEitherSide) {
    EXPECT_THAT(chosenAfter(0.85, {Qt::Key_Right}), ElementsAre(0.9));
    EXPECT_THAT(chosenAfter(0.85, {Qt::Key_Left}), ElementsAre(0.8));
    EXPECT_THAT(chosenAfter(0.82, {Qt::Key_Right}), ElementsAre(0.9));
    EXPECT_THAT(chosenAfter(0.88, {Qt::Key_Left}), ElementsAre(0.8));
}

TEST_F(StepSliderTest, FromBeyondItsEndsKeysOnlyLeadBack) {
    EXPECT_THAT(chosenAfter(3.0, {Qt::Key_Right, Qt::Key_PageUp}), IsEmpty());
    EXPECT_EQ(slider.number(), 3.0);
    EXPECT_THAT(chosenAfter(3.0, {Qt::Key_Left, Qt::Key_Left}), ElementsAre(2.0, 1.9));
    EXPECT_THAT(chosenAfter(0.1, {Qt::Key_Left}), IsEmpty());
    EXPECT_THAT(chosenAfter(0.1, {Qt::Key_Right}), ElementsAre(0.3));
}

TEST_F(StepSliderTest, APressBesideTheHandleBringsItThere) {
    slider.setNumber(0.8);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, placeOf(1.5));
    EXPECT_THAT(chosen, ElementsAre(1.5));
}

TEST_F(StepSliderTest, TakingTheHandleChoosesNothingUntilItIsMoved) {
    for (const double stored : {0.8, 0.85, 3.0}) {
        slider.setNumber(stored);
        const QPoint at = placeOf(std::min(stored, 2.0)) + QPoint(4, 0);
        QTest::mousePress(&slider, Qt::LeftButton, {}, at);
        EXPECT_THAT(chosen, IsEmpty()) << stored;
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, at);
        EXPECT_THAT(chosen, IsEmpty()) << stored;
    }
}

TEST_F(StepSliderTest, TheHandleIsDraggedFromWhereItIsHeld) {
    slider.setNumber(0.8);
    const QPoint grip(5, 0);
    QTest::mousePress(&slider, Qt::LeftButton, {}, placeOf(0.8) + grip);
    QTest::mouseMove(&slider, placeOf(1.1) + grip);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, placeOf(1.1) + grip);
    ASSERT_FALSE(chosen.empty());
    EXPECT_THAT(chosen.back(), DoubleNear(1.1, 1e-9));
}

} // namespace
} // namespace quillon
