#include <quillon/tests/support/system/temporary_folder.h>

#include <quillon/app/platform/linux/applications/desktop_entries.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace quillon {
namespace {

const TemporaryFolder* folder = nullptr;

void install(const std::string& id, const std::string& keys) {
    folder->write(
        "user/applications/" + id + ".desktop",
        "[Desktop Entry]\nType=Application\nName=" + id + "\nExec=true\n" + keys);
}

TEST(InstalledEntriesTest, AreReadWithWhatIdentifiesAnApplication) {
    const DesktopEntries entries = DesktopEntries::installed();
    const DesktopEntry* writer = entries.byID("office-writer");
    ASSERT_NE(writer, nullptr);
    EXPECT_EQ(writer->name, "Schreiber");
    EXPECT_EQ(writer->startupWMClass, "office-writer");
    EXPECT_EQ(writer->icon, "office-writer-icon");
    EXPECT_EQ(writer->executable, "env");
    EXPECT_TRUE(writer->isShown);
    EXPECT_FALSE(writer->isTerminal);
}

TEST(InstalledEntriesTest, HiddenOnesAndTerminalsAreMarked) {
    const DesktopEntries entries = DesktopEntries::installed();
    ASSERT_NE(entries.byID("background"), nullptr);
    EXPECT_FALSE(entries.byID("background")->isShown);
    ASSERT_NE(entries.byID("terminal"), nullptr);
    EXPECT_TRUE(entries.byID("terminal")->isTerminal);
}

TEST(InstalledEntriesTest, DeletedAndBrokenOnesAreLeftOut) {
    const DesktopEntries entries = DesktopEntries::installed();
    EXPECT_EQ(entries.byID("deleted"), nullptr);
    EXPECT_EQ(entries.byID("broken"), nullptr);
    EXPECT_EQ(entries.all().size(), 3U);
}

} // namespace
} // namespace quillon

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The folders and the language are looked up once in the life of a process.
    const quillon::TemporaryFolder temporary;
    quillon::folder = &temporary;
    ::setenv("XDG_DATA_HOME", (temporary.path() / "user").c_str(), 1);
    ::setenv("XDG_DATA_DIRS", (temporary.path() / "system").c_str(), 1);
    ::setenv("LANGUAGE", "de", 1);
    quillon::install(
        "office-writer", "Name[de]=Schreiber\nName[fr]=Auteur\nStartupWMClass=office-writer\n"
                         "Icon=office-writer-icon\nExec=env A=b true %U\n");
    quillon::install("background", "NoDisplay=true\n");
    quillon::install("terminal", "Categories=System;TerminalEmulator;\n");
    quillon::install("deleted", "Hidden=true\n");
    temporary.write("user/applications/broken.desktop", "\xff not an entry");
    return RUN_ALL_TESTS();
}
