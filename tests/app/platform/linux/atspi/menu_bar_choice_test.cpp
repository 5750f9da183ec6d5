#include <quillon/app/platform/linux/atspi/menu_bar_choice.h>

#include <gtest/gtest.h>

#include <vector>

namespace quillon::atspi {
namespace {

constexpr MenuBarFacts drawn{.isShowing = true, .hasRoom = true};
constexpr MenuBarFacts imagined{.isShowing = true, .hasRoom = false};
constexpr MenuBarFacts putAway{.isShowing = false, .hasRoom = false};
constexpr MenuBarFacts silent{.isShowing = true, .hasRoom = std::nullopt};

std::optional<std::size_t> chosen(const std::vector<MenuBarFacts>& bars) {
    return chosenMenuBar(bars);
}

TEST(MenuBarChoice, OfNoBarsIsNone) {
    EXPECT_EQ(chosen({}), std::nullopt);
}

TEST(MenuBarChoice, OfOneIsThatOneWhateverItTells) {
    for (const MenuBarFacts& bar : {drawn, imagined, putAway, silent})
        EXPECT_EQ(chosen({bar}), 0U);
}

TEST(MenuBarChoice, TakesTheOneThatIsDrawnHoweverDeepItLies) {
    EXPECT_EQ(chosen({imagined, drawn}), 1U);
    EXPECT_EQ(chosen({putAway, imagined, drawn}), 2U);
}

TEST(MenuBarChoice, TakesTheNearestOfSeveralThatAreDrawn) {
    EXPECT_EQ(chosen({drawn, drawn}), 0U);
    EXPECT_EQ(chosen({imagined, drawn, drawn}), 1U);
}

TEST(MenuBarChoice, BelievesABarThatTellsNoSize) {
    EXPECT_EQ(chosen({silent, drawn}), 0U);
    EXPECT_EQ(chosen({imagined, silent}), 1U);
}

TEST(MenuBarChoice, PrefersABarThatSaysItIsPutAwayToOneThatNobodyCanSee) {
    EXPECT_EQ(chosen({imagined, putAway}), 1U);
    EXPECT_EQ(chosen({putAway, putAway}), 0U);
}

} // namespace
} // namespace quillon::atspi
