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
    EXPECT_FALSE(desktop.access.hasSettings());
    EXPECT_FALSE(desktop.access.openSettings());
    EXPECT_FALSE(desktop.icons.icon("org.gnome.gedit"));
    EXPECT_EQ(desktop.appearance.look(), Look());
    EXPECT_TRUE(desktop.panels.screens().empty());
    EXPECT_EQ(desktop.panels.pointer(), Point());
    EXPECT_FALSE(desktop.windows.offers(WindowName::welcome));
    EXPECT_FALSE(desktop.windows.hasKeyboard(WindowName::practice));
    EXPECT_EQ(desktop.menus.readMenus({}, {}), MenuReading());
    EXPECT_FALSE(desktop.tray.isShown());
    EXPECT_FALSE(desktop.sessionStart.isOffered());
    EXPECT_FALSE(desktop.sessionStart.isOn());
    EXPECT_TRUE(desktop.launcherKey.modifier().isEmpty());
    EXPECT_FALSE(desktop.softwarePages.hasSoftwareCentre());
    EXPECT_FALSE(desktop.keyReading.stroke({}));
    EXPECT_FALSE(desktop.keyReading.printed());
}

TEST(NoDesktopTest, AsksForNothing) {
    NoDesktop desktop;
    desktop.access.ask();
    desktop.windows.open(WindowName::library);
    EXPECT_FALSE(desktop.access.onChanged([] {}));
    EXPECT_FALSE(desktop.panels.onScreensChanged([] {}));
    EXPECT_FALSE(desktop.keyReading.follow([] {}));
    EXPECT_FALSE(desktop.keyboardGrab.take(0, [] {}));
    EXPECT_FALSE(desktop.keyboard.onModifiersChanged([](Modifiers) {}));
    EXPECT_FALSE(desktop.front.onActivated([](const RunningApp&) {}));
    EXPECT_FALSE(desktop.appearance.onChanged([] {}));
    desktop.tray.show({});
    desktop.tray.setMenu({});
    EXPECT_FALSE(desktop.tray.onShownChanged([] {}));
    EXPECT_FALSE(desktop.sessionStart.setOn(true));
    EXPECT_FALSE(desktop.silentApps.look([](const auto&) {}));
    EXPECT_FALSE(desktop.softwarePages.openPage("https://quillon.app/"));
    EXPECT_FALSE(desktop.softwarePages.openSoftwareCentre());
}

TEST(NoDesktopTest, APanelIsNeverNullAndNeverSeen) {
    NoDesktop desktop;
    const auto panel = desktop.panels.makePanel({});
    ASSERT_NE(panel, nullptr);
    panel->prepare();
    panel->setFrame({0, 0, 100, 100});
    panel->orderFront();
    panel->makeKey();
    EXPECT_FALSE(panel->isVisible());
    panel->orderOut();
}

TEST(NoDesktopTest, AnObservationSeesNothingAndIsNeverNull) {
    NoDesktop desktop;
    const auto ages = desktop.keyboard.observeInput();
    ASSERT_NE(ages, nullptr);
    EXPECT_TRUE(std::isinf(ages->sinceLast(InputKind::keyDown).count()));
}

} // namespace
} // namespace quillon
