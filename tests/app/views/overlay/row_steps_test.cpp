#include <quillon/app/views/overlay/row_steps.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

/// Two columns of two and three rows below a wide row of two.
AreaLayout someRows() {
    AreaLayout layout;
    const auto add = [&](double x, double y, double width) {
        layout.rows.push_back({.rect = QRectF(x, y, width, 20)});
    };
    add(0, 0, 140);     // 0
    add(160, 0, 140);   // 1
    add(0, 50, 100);    // 2
    add(0, 70, 100);    // 3
    add(120, 50, 100);  // 4
    add(120, 70, 100);  // 5
    add(120, 120, 100); // 6, in another card
    return layout;
}

std::size_t after(std::size_t from, RowStep step) {
    return rowAfterStep(someRows(), from, step, 55);
}

TEST(RowSteps, DownFollowsAColumnFromCardToCard) {
    EXPECT_EQ(after(0, RowStep::down), 2U);
    EXPECT_EQ(after(2, RowStep::down), 3U);
    EXPECT_EQ(after(4, RowStep::down), 5U);
    EXPECT_EQ(after(5, RowStep::down), 6U);
    EXPECT_EQ(after(1, RowStep::down), 4U);
}

TEST(RowSteps, UpGoesTheSameWayBack) {
    EXPECT_EQ(after(6, RowStep::up), 5U);
    EXPECT_EQ(after(3, RowStep::up), 2U);
    EXPECT_EQ(after(2, RowStep::up), 0U);
}

TEST(RowSteps, SidewaysGoesToTheRowBeside) {
    EXPECT_EQ(after(2, RowStep::right), 4U);
    EXPECT_EQ(after(3, RowStep::right), 5U);
    EXPECT_EQ(after(6, RowStep::left), 3U);
    EXPECT_EQ(after(0, RowStep::right), 1U);
    EXPECT_EQ(after(1, RowStep::left), 0U);
}

TEST(RowSteps, AtTheEdgeNothingMoves) {
    EXPECT_EQ(after(0, RowStep::up), 0U);
    EXPECT_EQ(after(6, RowStep::down), 6U);
    EXPECT_EQ(after(3, RowStep::down), 3U);
    EXPECT_EQ(after(2, RowStep::left), 2U);
    EXPECT_EQ(after(5, RowStep::right), 5U);
}

TEST(RowSteps, HomeAndEndGoToTheFirstAndLastRow) {
    EXPECT_EQ(after(3, RowStep::first), 0U);
    EXPECT_EQ(after(3, RowStep::last), 6U);
}

TEST(RowSteps, PagesStayInTheColumn) {
    EXPECT_EQ(after(4, RowStep::pageDown), 6U);
    EXPECT_EQ(after(6, RowStep::pageUp), 5U);
    EXPECT_EQ(after(2, RowStep::pageDown), 3U) << "no further row: the last one";
}

} // namespace
} // namespace quillon
