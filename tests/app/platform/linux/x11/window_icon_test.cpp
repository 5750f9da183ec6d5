#include <quillon/app/platform/linux/x11/window_icon.h>

#include <gtest/gtest.h>

#include <vector>

namespace quillon {
namespace {

void append(std::vector<std::uint32_t>& property, std::uint32_t side, std::uint32_t colour) {
    property.push_back(side);
    property.push_back(side);
    property.insert(property.end(), std::size_t{side} * side, colour);
}

TEST(WindowIconTest, TheSmallestThatIsLargeEnoughIsTaken) {
    std::vector<std::uint32_t> property;
    append(property, 16, 1);
    append(property, 128, 2);
    append(property, 64, 3);
    append(property, 48, 4);
    const auto icon = iconFrom(property);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->width, 64);
    EXPECT_EQ(icon->height, 64);
    EXPECT_EQ(icon->argb, std::vector<std::uint32_t>(64 * 64, 3));
}

TEST(WindowIconTest, ElseTheLargest) {
    std::vector<std::uint32_t> property;
    append(property, 16, 1);
    append(property, 48, 2);
    append(property, 32, 3);
    ASSERT_TRUE(iconFrom(property));
    EXPECT_EQ(iconFrom(property)->width, 48);
}

TEST(WindowIconTest, OneThatIsTooLargeIsPassedOver) {
    std::vector<std::uint32_t> property;
    append(property, 300, 1);
    EXPECT_FALSE(iconFrom(property));
    append(property, 32, 2);
    ASSERT_TRUE(iconFrom(property));
    EXPECT_EQ(iconFrom(property)->width, 32);
}

TEST(WindowIconTest, NumbersThatDoNotMakeSenseGiveNothing) {
    EXPECT_FALSE(iconFrom({}));
    EXPECT_FALSE(iconFrom(std::vector<std::uint32_t>{16}));
    EXPECT_FALSE(iconFrom(std::vector<std::uint32_t>{0, 0}));
    EXPECT_FALSE(iconFrom(std::vector<std::uint32_t>{2, 2, 7, 7, 7}));
    EXPECT_FALSE(iconFrom(std::vector<std::uint32_t>{0xFFFFFFFF, 0xFFFFFFFF, 1}));
    EXPECT_FALSE(iconFrom(std::vector<std::uint32_t>{0x80000000, 2, 1, 1}));
}

TEST(WindowIconTest, WhatIsCutOffLosesOnlyTheCutPicture) {
    std::vector<std::uint32_t> property;
    append(property, 32, 5);
    append(property, 64, 6);
    property.resize(property.size() - 1);
    ASSERT_TRUE(iconFrom(property));
    EXPECT_EQ(iconFrom(property)->width, 32);
}

} // namespace
} // namespace quillon
