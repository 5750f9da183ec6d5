#include <quillon/app/platform/linux/access/accessibility_settings.h>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace quillon {
namespace {

std::optional<ProgramCall> chosen(std::string_view desktops, std::set<std::string> installed) {
    return accessibilitySettings(
        desktops, [&installed](const std::string& program) { return installed.contains(program); });
}

TEST(AccessibilitySettingsTest, TheDesktopsOwnComeFirst) {
    EXPECT_EQ(
        chosen("XFCE", {"gnome-control-center", "xfce4-accessibility-settings"}),
        ProgramCall{"xfce4-accessibility-settings"});
    EXPECT_EQ(
        chosen("ubuntu:GNOME", {"gnome-control-center", "systemsettings"}),
        (ProgramCall{"gnome-control-center", "universal-access"}));
    EXPECT_EQ(
        chosen("KDE", {"kcmshell5", "systemsettings5"}), (ProgramCall{"systemsettings5", "kcm_access"}));
    EXPECT_EQ(chosen("KDE", {"kcmshell5"}), (ProgramCall{"kcmshell5", "kcm_access"}));
    EXPECT_EQ(
        chosen("X-Cinnamon", {"cinnamon-settings"}), (ProgramCall{"cinnamon-settings", "accessibility"}));
}

TEST(AccessibilitySettingsTest, ElseAnyThatIsInstalled) {
    EXPECT_EQ(chosen("KDE", {"mate-at-properties"}), ProgramCall{"mate-at-properties"});
    EXPECT_EQ(chosen("", {"mate-at-properties"}), ProgramCall{"mate-at-properties"});
    EXPECT_EQ(chosen("GNOMEX", {"xterm"}), std::nullopt);
}

} // namespace
} // namespace quillon
