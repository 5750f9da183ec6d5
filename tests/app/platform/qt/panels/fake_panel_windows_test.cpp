#include "support/fake_panel_windows.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(FakePanelWindowsTest, TheKeyboardGoesBackOnlyFromItsOwner) {
    FakePanelWindows panels;
    panels.takeKeyboard(5);
    panels.returnKeyboard(6);
    EXPECT_EQ(panels.keyboardOwner(), 5U);
    panels.returnKeyboard(5);
    EXPECT_EQ(panels.keyboardOwner(), std::nullopt);
}

TEST(FakePanelWindowsTest, TellsPressesAndBlending) {
    FakePanelWindows panels;
    int presses = 0;
    int blendings = 0;
    Subscription press = panels.onPressElsewhere([&] { ++presses; });
    const Subscription blending = panels.onCompositedChanged([&] { ++blendings; });
    panels.pressElsewhere();
    press.reset();
    panels.pressElsewhere();
    panels.setComposited(false);
    panels.setComposited(false);
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(blendings, 1);
    EXPECT_EQ(panels.pressListeners(), 0U);
}

} // namespace
} // namespace quillon
