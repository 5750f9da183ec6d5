#include <quillon/app/platform/linux/desktop/pointed_items.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

PointedItems::Item item(MenuItemNumber number, std::uint64_t opening, Rect frame) {
    return {number, opening, {.path = {"File", "New"}, .shortcut = {}, .enabled = true, .frame = frame}};
}

TEST(PointedItemsTest, KnowsAnItemByItsPlaceInItsMenu) {
    PointedItems items;
    items.learn(item(1, 7, {0, 0, 100, 20}));
    items.learn(item(2, 7, {0, 20, 100, 20}));
    ASSERT_NE(items.at(7, {50, 30}), nullptr);
    EXPECT_EQ(items.at(7, {50, 30})->number, 2U);
    EXPECT_EQ(items.at(7, {50, 45}), nullptr);
    EXPECT_EQ(items.at(8, {50, 30}), nullptr);
}

TEST(PointedItemsTest, WhatWasLearnedLastStands) {
    PointedItems items;
    items.learn(item(1, 7, {0, 0, 100, 20}));
    items.learn(item(2, 7, {0, 0, 100, 20}));
    EXPECT_EQ(items.at(7, {50, 10})->number, 2U);
}

TEST(PointedItemsTest, AMenuThatScrolledIsForgotten) {
    PointedItems items;
    items.learn(item(1, 7, {0, 0, 100, 20}));
    items.learn(item(2, 8, {0, 0, 100, 20}));
    items.forget(7);
    EXPECT_EQ(items.at(7, {50, 10}), nullptr);
    EXPECT_NE(items.at(8, {50, 10}), nullptr);
}

TEST(PointedItemsTest, WithoutAFrameThereIsNoPlace) {
    PointedItems items;
    items.learn({1, 7, {}});
    EXPECT_EQ(items.at(7, {0, 0}), nullptr);
}

TEST(PointedItemsTest, DoesNotGrowWithoutEnd) {
    PointedItems items;
    for (MenuItemNumber number = 1; number <= 1000; ++number)
        items.learn(item(number, 7, {static_cast<double>(number), 0, 1, 1}));
    EXPECT_EQ(items.at(7, {1, 0}), nullptr);
    EXPECT_NE(items.at(7, {1000, 0}), nullptr);
}

} // namespace
} // namespace quillon
