#include <quillon/tests/support/system/temporary_folder.h>

#include <quillon/app/platform/linux/applications/gtk2_process.h>

#include <gtest/gtest.h>

#include <unistd.h>

namespace quillon {
namespace {

constexpr const char* otherMappings =
    "7f00-7f01 r-xp 00000000 08:01 11 /usr/lib/x86_64-linux-gnu/libgtk-3.so.0.2404.32\n"
    "7f02-7f03 r-xp 00000000 08:01 12 /home/someone/about libgtk-x11-2.0\n";

TEST(Gtk2ProcessTest, IsToldByTheLibraryThatItMaps) {
    const TemporaryFolder processes;
    processes.write("10/maps", otherMappings);
    processes.write(
        "20/maps",
        std::string(otherMappings)
            + "7f04-7f05 r-xp 00000000 08:01 13 /usr/lib/x86_64-linux-gnu/libgtk-x11-2.0.so.0.2400.33\n");
    EXPECT_FALSE(usesGtk2(10, processes.path()));
    EXPECT_TRUE(usesGtk2(20, processes.path()));
    EXPECT_FALSE(usesGtk2(30, processes.path())) << "gone";
}

TEST(Gtk2ProcessTest, ThisTestUsesNone) {
    EXPECT_FALSE(usesGtk2(::getpid(), "/proc"));
}

} // namespace
} // namespace quillon
