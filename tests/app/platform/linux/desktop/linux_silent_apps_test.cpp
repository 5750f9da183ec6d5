#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/fake/fake_clock.h>
#include <quillon/app/platform/linux/desktop/linux_silent_apps.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* qtMapping = "7f00-7f01 r-xp 0 08:01 11 /usr/lib/libQt5Gui.so.5.15.8\n";
constexpr const char* gtkMapping = "7f00-7f01 r-xp 0 08:01 11 /usr/lib/libgtk-3.so.0\n";
constexpr std::int64_t own = 1;

class LinuxSilentAppsTest : public testing::Test {
  protected:
    LinuxSilentAppsTest() {
        for (const char* qt : {"1/maps", "10/maps", "11/maps", "20/maps"})
            processes.write(qt, qtMapping);
        processes.write("30/maps", gtkMapping);
        background.runAll();
    }
    static DesktopEntries installed() {
        return DesktopEntries(
            {{.id = "pad", .name = "Feather Pad", .startupWMClass = {}, .icon = {}, .executable = "pad"},
             {.id = "draw", .name = "Drawing", .startupWMClass = {}, .icon = {}, .executable = "draw"}});
    }
    static WindowFacts windowOf(std::int64_t pid, const std::string& className) {
        return {.pid = pid, .instance = className, .className = className, .gtkApplicationID = {}};
    }
    std::vector<std::string> look() {
        std::vector<std::string> told{"never told"};
        const Subscription looking = apps.look([&told](std::vector<std::string> names) { told = names; });
        background.runAll();
        return told;
    }

    TemporaryFolder processes;
    FakeClock clock;
    FakeBackground background;
    AppIdentifier identifier{background, clock, installed, processes.path()};
    std::vector<WindowFacts> windows;
    std::optional<std::vector<std::int64_t>> sharing = std::vector<std::int64_t>{20};
    LinuxSilentApps apps{
        {.background = background,
         .identifier = identifier,
         .windows = [this] { return windows; },
         .sharing = [this] { return sharing; },
         .processes = processes.path(),
         .ownPid = own}};
};

TEST_F(LinuxSilentAppsTest, AreTheQtApplicationsThatAreNotOnTheBus) {
    windows = {windowOf(10, "pad"),  windowOf(20, "sharing"), windowOf(30, "gtk"),     windowOf(11, "draw"),
               windowOf(40, "gone"), windowOf(0, "unknown"),  windowOf(own, "quillon")};
    EXPECT_THAT(look(), ElementsAre("Drawing", "Feather Pad"));
}

TEST_F(LinuxSilentAppsTest, EachIsNamedOnce) {
    windows = {windowOf(10, "pad"), windowOf(10, "pad"), windowOf(11, "pad")};
    EXPECT_THAT(look(), ElementsAre("Feather Pad"));
}

TEST_F(LinuxSilentAppsTest, WithoutWindowsThereAreNone) {
    EXPECT_THAT(look(), IsEmpty());
}

TEST_F(LinuxSilentAppsTest, WhereTheBusCannotBeReachedNobodyCanTell) {
    windows = {windowOf(10, "pad")};
    sharing.reset();
    EXPECT_THAT(look(), IsEmpty());
}

TEST_F(LinuxSilentAppsTest, WhoLooksNoMoreIsNotTold) {
    windows = {windowOf(10, "pad")};
    int told = 0;
    apps.look([&told](const std::vector<std::string>&) { ++told; }).reset();
    background.runAll();
    EXPECT_EQ(told, 0);
}

} // namespace
} // namespace quillon
