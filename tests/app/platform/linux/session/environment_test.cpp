#include <quillon/app/platform/linux/session/paths.h>
#include <quillon/app/platform/linux/session/session_kind.h>

#include <gtest/gtest.h>

#include <map>
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

} // namespace
} // namespace quillon
