#include <quillon/app/platform/none/no_desktop.h>

#include <gtest/gtest.h>

#include <cmath>

namespace quillon {
namespace {

TEST(NoDesktopTest, HasNothingToTell) {
    NoDesktop desktop;
    EXPECT_FALSE(desktop.front.current());
    EXPECT_TRUE(desktop.keyboard.modifiers().isEmpty());
    EXPECT_FALSE(desktop.access.isTrusted());
    EXPECT_FALSE(desktop.access.openSettings());
    EXPECT_FALSE(desktop.icons.icon("org.gnome.gedit"));
    EXPECT_EQ(desktop.appearance.look(), Look());
    EXPECT_FALSE(desktop.panels.isComposited());
    EXPECT_FALSE(desktop.windows.offers(WindowName::welcome));
    EXPECT_FALSE(desktop.windows.hasKeyboard(WindowName::practice));
    EXPECT_EQ(desktop.menus.readMenus({}, {}), MenuReading());
}

TEST(NoDesktopTest, AsksForNothing) {
    NoDesktop desktop;
    desktop.access.ask();
    desktop.windows.open(WindowName::library);
    desktop.panels.prepare(1);
    desktop.panels.takeKeyboard(1);
    desktop.panels.returnKeyboard(1);
    EXPECT_FALSE(desktop.access.onChanged([] {}));
    EXPECT_FALSE(desktop.panels.onPressElsewhere([] {}));
    EXPECT_FALSE(desktop.panels.onCompositedChanged([] {}));
    EXPECT_FALSE(desktop.keyboard.onModifiersChanged([](Modifiers) {}));
    EXPECT_FALSE(desktop.front.onActivated([](const RunningApp&) {}));
    EXPECT_FALSE(desktop.appearance.onChanged([] {}));
}

TEST(NoDesktopTest, AnObservationSeesNothingAndIsNeverNull) {
    NoDesktop desktop;
    const auto ages = desktop.keyboard.observeInput();
    ASSERT_NE(ages, nullptr);
    EXPECT_TRUE(std::isinf(ages->sinceLast(InputKind::keyDown).count()));
}

} // namespace
} // namespace quillon
