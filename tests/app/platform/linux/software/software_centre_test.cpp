#include <quillon/app/platform/linux/software/software_centre.h>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace quillon {
namespace {

std::optional<std::string> chosen(std::string_view desktops, std::set<std::string> installed) {
    return softwareCentre(
        desktops, [&installed](const std::string& program) { return installed.contains(program); });
}

TEST(SoftwareCentreTest, TheDesktopsOwnComesFirst) {
    EXPECT_EQ(chosen("KDE", {"gnome-software", "plasma-discover"}), "plasma-discover");
    EXPECT_EQ(chosen("ubuntu:GNOME", {"gnome-software", "plasma-discover"}), "gnome-software");
    EXPECT_EQ(chosen("X-Cinnamon", {"gnome-software", "mintinstall"}), "mintinstall");
}

TEST(SoftwareCentreTest, ElseAnyThatIsInstalled) {
    EXPECT_EQ(chosen("XFCE", {"plasma-discover"}), "plasma-discover");
    EXPECT_EQ(chosen("", {"gnome-software"}), "gnome-software");
    EXPECT_EQ(chosen("KDE", {"xterm"}), std::nullopt);
}

} // namespace
} // namespace quillon
