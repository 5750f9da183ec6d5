#include <quillon/tests/support/system/temporary_folder.h>

#include <quillon/app/platform/linux/applications/toolkit_libraries.h>

#include <gtest/gtest.h>

#include <unistd.h>

namespace quillon {
namespace {

std::string mapping(const std::string& file) {
    return "7f00-7f01 r-xp 00000000 08:01 11 " + file + "\n";
}

class ToolkitLibrariesTest : public testing::Test {
  protected:
    ToolkitLibraries of(const std::string& mappings) {
        processes.write("10/maps", mappings);
        return toolkitLibraries(10, processes.path());
    }

    const TemporaryFolder processes;
    const std::string others = mapping("/usr/lib/x86_64-linux-gnu/libgtk-3.so.0.2404.32")
                               + mapping("/home/someone/about libgtk-x11-2.0")
                               + mapping("/usr/lib/x86_64-linux-gnu/libQt5Core.so.5.15.8");
};

TEST_F(ToolkitLibrariesTest, OthersSayNothing) {
    EXPECT_EQ(of(others), ToolkitLibraries());
}

TEST_F(ToolkitLibrariesTest, Gtk2IsToldByItsLibrary) {
    EXPECT_EQ(
        of(others + mapping("/usr/lib/x86_64-linux-gnu/libgtk-x11-2.0.so.0.2400.33")),
        ToolkitLibraries{.gtk2 = true});
}

TEST_F(ToolkitLibrariesTest, QtIsToldByTheLibraryThatDraws) {
    EXPECT_EQ(
        of(others + mapping("/usr/lib/x86_64-linux-gnu/libQt5Gui.so.5.15.8")), ToolkitLibraries{.qt = true});
    EXPECT_EQ(of(mapping("/opt/qt/lib/libQt6Gui.so.6.4.2") + others), ToolkitLibraries{.qt = true});
}

TEST_F(ToolkitLibrariesTest, OfAProcessThatIsGoneNothingIsKnown) {
    EXPECT_EQ(toolkitLibraries(30, processes.path()), ToolkitLibraries());
    EXPECT_EQ(toolkitLibraries(::getpid(), "/proc"), ToolkitLibraries()) << "this test draws nothing";
}

} // namespace
} // namespace quillon
