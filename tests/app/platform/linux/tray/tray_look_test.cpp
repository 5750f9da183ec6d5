#include <quillon/app/platform/linux/tray/tray_look.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(TrayLook, GnomesBarIsDarkWhateverItsWindowsAre) {
    for (const auto desktop : {"GNOME", "ubuntu:GNOME", "GNOME-Classic:GNOME", "Unity:Unity7:ubuntu"})
        for (const auto windows : {ColourScheme::light, ColourScheme::dark})
            EXPECT_EQ(trayLookOf(desktop, windows), (TrayLook{ColourScheme::dark, true})) << desktop;
}

TEST(TrayLook, ElsewhereTheTrayIsAsTheWindowsAre) {
    EXPECT_EQ(trayLookOf("KDE", ColourScheme::light), (TrayLook{ColourScheme::light, true}));
    EXPECT_EQ(trayLookOf("KDE", ColourScheme::dark), (TrayLook{ColourScheme::dark, true}));
    for (const auto desktop : {"XFCE", "", ":", "sway", "NOTGNOME", "LXQt:GNOMEs"})
        EXPECT_EQ(trayLookOf(desktop, ColourScheme::light), (TrayLook{ColourScheme::light, false}))
            << desktop;
}

} // namespace
} // namespace quillon
