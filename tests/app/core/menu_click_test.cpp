#include <quillon/app/core/menu_click.h>

#include <gtest/gtest.h>

#include <limits>

namespace quillon {
namespace {

constexpr Rect frame{100, 200, 80, 20};
constexpr Point inside{110, 210};

MenuClickFacts plainClick() {
    return {.frame = frame, .releasedAt = inside};
}

TEST(MenuClick, IsAButtonLetGoOverACommandThatClosesTheMenus) {
    EXPECT_TRUE(isMenuClick(plainClick()));
}

TEST(MenuClick, CountsUpToTwoPixelsBesideTheItem) {
    for (const Point near :
         {Point{99, 210}, Point{98, 210}, Point{181, 210}, Point{110, 199}, Point{110, 198}, Point{110, 221}})
        EXPECT_TRUE(isOver(frame, near)) << near.x << ", " << near.y;
    for (const Point beside :
         {Point{97, 210}, Point{183, 210}, Point{110, 197}, Point{110, 223}, Point{97, 197}, Point{0, 0}}) {
        EXPECT_FALSE(isOver(frame, beside)) << beside.x << ", " << beside.y;
        MenuClickFacts facts = plainClick();
        facts.releasedAt = beside;
        EXPECT_FALSE(isMenuClick(facts));
    }
}

TEST(MenuClick, IsNowhereWithoutAFrame) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(isOver(std::nullopt, inside));
    EXPECT_FALSE(isOver(Rect{0, 0, 0, 0}, {0, 0}));
    EXPECT_FALSE(isOver(Rect{100, 200, 80, 0}, {110, 200}));
    EXPECT_FALSE(isOver(Rect{100, 200, 0, 20}, {100, 210}));
    EXPECT_FALSE(isOver(Rect{100, 200, -80, -20}, {99, 199}));
    EXPECT_FALSE(isOver(Rect{nan, 200, 80, 20}, inside));
    EXPECT_FALSE(isOver(Rect{100, 200, nan, 20}, inside));
    EXPECT_FALSE(isOver(frame, {nan, nan}));
    EXPECT_FALSE(isOver(frame, {infinite, infinite}));
    MenuClickFacts facts = plainClick();
    facts.frame.reset();
    EXPECT_FALSE(isMenuClick(facts));
}

TEST(MenuClick, NeedsAnEnabledCommandWithAShortcutInAMenu) {
    MenuClickFacts disabled = plainClick();
    disabled.enabled = false;
    EXPECT_FALSE(isMenuClick(disabled));
    MenuClickFacts withoutShortcut = plainClick();
    withoutShortcut.hasShortcut = false;
    EXPECT_FALSE(isMenuClick(withoutShortcut));
    for (const std::size_t titles : {0U, 1U, 2U, 3U, 8U}) {
        MenuClickFacts facts = plainClick();
        facts.titles = titles;
        EXPECT_EQ(isMenuClick(facts), titles >= 2) << titles;
    }
}

TEST(MenuClick, CountsAnItemThatWasLeftJustBefore) {
    for (const auto& [left, pointedAt] :
         {std::pair(-10.0, false), {-0.31, false}, {-0.3, true}, {-0.05, true}, {0.0, true}, {0.5, true}}) {
        EXPECT_EQ(wasPointedAt(Seconds(left)), pointedAt) << left;
        MenuClickFacts facts = plainClick();
        facts.left = Seconds(left);
        EXPECT_EQ(isMenuClick(facts), pointedAt) << left;
    }
    EXPECT_TRUE(wasPointedAt(std::nullopt));
}

TEST(MenuClick, NeedsTheMenusToCloseThen) {
    for (const auto& [closed, inTime] :
         {std::pair(-1.0, false), {-0.11, false}, {-0.1, true}, {0.0, true}, {1.0, true}, {1.01, false}}) {
        EXPECT_EQ(mayHaveClosed(Seconds(closed)), inTime) << closed;
        MenuClickFacts facts = plainClick();
        facts.closed = Seconds(closed);
        EXPECT_EQ(isMenuClick(facts), inTime) << closed;
    }
    MenuClickFacts open = plainClick();
    open.closed.reset();
    EXPECT_FALSE(isMenuClick(open));
}

TEST(MenuClick, NeedsTheApplicationToTellInTime) {
    for (const auto& [told, inTime] :
         {std::pair(-60.0, true), {-0.1, true}, {0.0, true}, {1.0, true}, {1.01, false}}) {
        MenuClickFacts facts = plainClick();
        facts.told = Seconds(told);
        EXPECT_EQ(isMenuClick(facts), inTime) << told;
    }
    MenuClickFacts untold = plainClick();
    untold.told.reset();
    EXPECT_FALSE(isMenuClick(untold));
}

} // namespace
} // namespace quillon
