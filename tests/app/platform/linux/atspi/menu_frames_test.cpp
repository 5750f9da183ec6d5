#include <quillon/app/platform/linux/atspi/menu_frames.h>

#include <gtest/gtest.h>

namespace quillon::atspi {
namespace {

TEST(MenuFramesTest, AMenuThatFillsItsWindowGivesTheMap) {
    const auto map = mapBetween({296, 177, 336, 449}, {296, 177, 336, 449});
    ASSERT_TRUE(map);
    EXPECT_EQ(map->onDisplay({296, 200, 336, 23}), (Rect{296, 200, 336, 23}));
    EXPECT_EQ(map->inToolkit({300, 210}), (Point{300, 210}));
}

TEST(MenuFramesTest, ScaledMenusMapBothWays) {
    const auto map = mapBetween({156, 124, 336, 449}, {312, 248, 672, 898});
    ASSERT_TRUE(map);
    EXPECT_EQ(map->onDisplay({156, 147, 336, 23}), (Rect{312, 294, 672, 46}));
    EXPECT_EQ(map->inToolkit({400, 300}), (Point{200, 150}));
}

TEST(MenuFramesTest, ASecondScreenThatKeepsItsPlaceMapsByTheWindowsCorner) {
    const auto map = mapBetween({1300, 20, 100, 60}, {1320, 40, 200, 120});
    ASSERT_TRUE(map);
    EXPECT_EQ(map->onDisplay({1300, 40, 100, 20}), (Rect{1320, 80, 200, 40}));
}

TEST(MenuFramesTest, AFractionalScaleMayRoundTheWindow) {
    EXPECT_TRUE(mapBetween({6, 38, 253, 251}, {9, 57, 379, 376}));
}

TEST(MenuFramesTest, ADifferentlyShapedMenuIsAnother) {
    EXPECT_FALSE(mapBetween({296, 177, 336, 449}, {296, 177, 336, 400}));
    EXPECT_FALSE(mapBetween({0, 0, 0, 0}, {296, 177, 336, 400}));
    EXPECT_FALSE(mapBetween({0, 0, 10, 10}, {0, 0, 1000, 1000}));
}

TEST(MenuFramesTest, WithoutAScaleAMenuElsewhereIsAnother) {
    EXPECT_FALSE(mapBetween({96, 177, 336, 449}, {296, 177, 336, 449}));
    EXPECT_FALSE(mapBetween({296, 57, 336, 449}, {296, 177, 336, 449}));
}

TEST(MenuFramesTest, AGtkItemSpansItsMenu) {
    EXPECT_EQ(gtkItemFrame({190, 132, 313, 25}, {190, 132, 313, 431}, {346, 144}), (Rect{190, 132, 313, 25}));
    EXPECT_EQ(gtkItemFrame({204, 150, 295, 25}, {202, 147, 299, 586}, {210, 160}), (Rect{204, 150, 295, 25}));
}

TEST(MenuFramesTest, AGtkItemAtTwiceTheSize) {
    EXPECT_EQ(gtkItemFrame({50, 78, 313, 25}, {100, 156, 626, 862}, {300, 170}), (Rect{100, 156, 626, 50}));
}

TEST(MenuFramesTest, WhatIsNotBelowThePlaceIsNotTheItem) {
    EXPECT_FALSE(gtkItemFrame({190, 157, 313, 25}, {190, 132, 313, 431}, {346, 144}));
}

TEST(MenuFramesTest, AnItemOfAnotherMenuDoesNotFit) {
    EXPECT_FALSE(gtkItemFrame({190, 132, 200, 25}, {190, 132, 313, 431}, {200, 144}));
    EXPECT_FALSE(gtkItemFrame({180, 132, 313, 25}, {190, 132, 313, 431}, {200, 144}));
    EXPECT_FALSE(gtkItemFrame({190, 107, 313, 50}, {190, 132, 313, 431}, {200, 144}));
}

TEST(MenuFramesTest, ItemsOfAClosedGtkMenuTellNoPlace) {
    constexpr std::int32_t nowhere = -2147483647 - 1;
    EXPECT_FALSE(gtkItemFrame({nowhere, nowhere, 313, 25}, {190, 132, 313, 431}, {346, 144}));
}

} // namespace
} // namespace quillon::atspi
