#include <quillon/app/platform/qt/panels/rounded_box.h>

#include <gtest/gtest.h>

#include <cmath>

namespace quillon {
namespace {

bool covers(const std::vector<PixelBox>& boxes, int x, int y) {
    int times = 0;
    for (const PixelBox& box : boxes)
        times += x >= box.x && x < box.x + box.width && y >= box.y && y < box.y + box.height ? 1 : 0;
    EXPECT_LE(times, 1) << "boxes overlap at " << x << ", " << y;
    return times > 0;
}

/// Whether the middle of a pixel lies inside of the rounded box.
bool isInside(const PixelBox& box, double radius, int x, int y) {
    const double dx = std::max(0.0, std::abs(x + 0.5 - box.x - box.width / 2.0) - box.width / 2.0 + radius);
    const double dy = std::max(0.0, std::abs(y + 0.5 - box.y - box.height / 2.0) - box.height / 2.0 + radius);
    return std::hypot(dx, dy) <= radius;
}

TEST(RoundedBoxesTest, CoverThePixelsWhoseMiddleIsInside) {
    for (const double radius : {1.0, 7.5, 16.0, 20.0, 32.0}) {
        const PixelBox box{3, 5, 90, 71};
        const auto boxes = roundedBoxes(box, radius);
        for (int y = 0; y < 80; ++y) {
            for (int x = 0; x < 100; ++x)
                EXPECT_EQ(covers(boxes, x, y), isInside(box, radius, x, y))
                    << x << ", " << y << " with radius " << radius;
        }
    }
}

TEST(RoundedBoxesTest, WithoutARadiusThereIsOne) {
    EXPECT_EQ(roundedBoxes({1, 2, 30, 40}, 0), (std::vector{PixelBox{1, 2, 30, 40}}));
}

TEST(RoundedBoxesTest, AnEmptyBoxHasNone) {
    EXPECT_TRUE(roundedBoxes({0, 0, 0, 0}, 8).empty());
}

TEST(RoundedBoxesTest, ARadiusThatIsTooLargeForTheBoxIsTheLargestThatFits) {
    EXPECT_EQ(roundedBoxes({0, 0, 20, 20}, 50), roundedBoxes({0, 0, 20, 20}, 10));
}

} // namespace
} // namespace quillon
