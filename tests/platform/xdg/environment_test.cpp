#include <quillon/xdg/accessibility_settings.h>
#include <quillon/xdg/paths.h>
#include <quillon/xdg/session_kind.h>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace quillon {
namespace {

Environment variables(std::map<std::string, std::string> values) {
    return [values = std::move(values)](const char* name) {
        const auto found = values.find(name);
        return found == values.end() ? std::string() : found->second;
    };
}

TEST(SessionKindTest, FollowsWhatTheLoginSet) {
    EXPECT_EQ(sessionKind(variables({{"DISPLAY", ":0"}})), SessionKind::x11);
    EXPECT_EQ(sessionKind(variables({{"DISPLAY", ":0"}, {"XDG_SESSION_TYPE", "x11"}})), SessionKind::x11);
    EXPECT_EQ(
        sessionKind(variables({{"DISPLAY", ":0"}, {"WAYLAND_DISPLAY", "wayland-0"}})), SessionKind::wayland);
    EXPECT_EQ(sessionKind(variables({{"XDG_SESSION_TYPE", "wayland"}})), SessionKind::wayland);
    EXPECT_EQ(sessionKind(variables({{"XDG_SESSION_TYPE", "tty"}})), SessionKind::none);
    EXPECT_EQ(sessionKind(variables({})), SessionKind::none);
}

TEST(PathsTest, FollowTheBaseDirectories) {
    const Environment chosen =
        variables({{"HOME", "/home/a"}, {"XDG_CONFIG_HOME", "/c"}, {"XDG_DATA_HOME", "/d"}});
    EXPECT_EQ(settingsFile(chosen), "/c/app.quillon.Quillon/settings.ini");
    EXPECT_EQ(dataFolder(chosen), "/d/app.quillon.Quillon");
}

TEST(PathsTest, LieInTheHomeOtherwise) {
    const Environment plain = variables({{"HOME", "/home/a"}});
    EXPECT_EQ(settingsFile(plain), "/home/a/.config/app.quillon.Quillon/settings.ini");
    EXPECT_EQ(dataFolder(plain), "/home/a/.local/share/app.quillon.Quillon");
    const Environment relative = variables({{"HOME", "/home/a"}, {"XDG_DATA_HOME", "data"}});
    EXPECT_EQ(dataFolder(relative), "/home/a/.local/share/app.quillon.Quillon");
}

TEST(PathsTest, AreEmptyWithoutAHome) {
    EXPECT_TRUE(dataFolder(variables({})).empty());
    EXPECT_TRUE(settingsFile(variables({{"HOME", "relative"}})).empty());
}

std::optional<Command> chosen(std::string_view desktops, std::set<std::string> installed) {
    return accessibilitySettings(
        desktops, [&installed](const std::string& program) { return installed.contains(program); });
}

TEST(AccessibilitySettingsTest, TheDesktopsOwnComeFirst) {
    EXPECT_EQ(
        chosen("XFCE", {"gnome-control-center", "xfce4-accessibility-settings"}),
        Command{"xfce4-accessibility-settings"});
    EXPECT_EQ(
        chosen("ubuntu:GNOME", {"gnome-control-center", "systemsettings"}),
        (Command{"gnome-control-center", "universal-access"}));
    EXPECT_EQ(chosen("KDE", {"kcmshell5", "systemsettings5"}), (Command{"systemsettings5", "kcm_access"}));
    EXPECT_EQ(chosen("KDE", {"kcmshell5"}), (Command{"kcmshell5", "kcm_access"}));
    EXPECT_EQ(chosen("X-Cinnamon", {"cinnamon-settings"}), (Command{"cinnamon-settings", "accessibility"}));
}

TEST(AccessibilitySettingsTest, ElseAnyThatIsInstalled) {
    EXPECT_EQ(chosen("KDE", {"mate-at-properties"}), Command{"mate-at-properties"});
    EXPECT_EQ(chosen("", {"mate-at-properties"}), Command{"mate-at-properties"});
    EXPECT_EQ(chosen("GNOMEX", {"xterm"}), std::nullopt);
}

} // namespace
} // namespace quillon
