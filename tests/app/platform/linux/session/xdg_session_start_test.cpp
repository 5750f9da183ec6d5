#include <quillon/app/platform/linux/session/autostart_entry.h>
#include <quillon/app/platform/linux/session/xdg_session_start.h>

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>

namespace quillon {
namespace {

namespace fs = std::filesystem;

class XdgSessionStartTest : public testing::Test {
  protected:
    XdgSessionStartTest() {
        fs::create_directories(executable.parent_path());
        std::ofstream(executable) << "#!/bin/sh\n";
        fs::permissions(executable, fs::perms::owner_all);
    }

    XdgSessionStart made() const { return XdgSessionStart({executable, sandboxNotice}, environment); }

    static std::string contents(const fs::path& path) {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }
    static void write(const fs::path& path, const std::string& text) {
        fs::create_directories(path.parent_path());
        std::ofstream(path) << text;
    }
    std::vector<std::string> filesBesideEntry() const {
        std::vector<std::string> names;
        for (const auto& file : fs::directory_iterator(entry.parent_path()))
            names.push_back(file.path().filename());
        return names;
    }

    const QTemporaryDir folder;
    const fs::path root{folder.path().toStdString()};
    const fs::path executable = root / "bin with blank" / "quillon";
    const fs::path sandboxNotice = root / "sandbox-info";
    const fs::path entry = root / "config/autostart/app.quillon.Quillon.desktop";
    const fs::path systemEntry = root / "xdg/autostart/app.quillon.Quillon.desktop";
    std::string snap;
    const Environment environment = [this](const char* name) -> std::string {
        const std::string_view variable(name);
        if (variable == "XDG_CONFIG_HOME")
            return (root / "config").string();
        if (variable == "XDG_CONFIG_DIRS")
            return (root / "none").string() + ":" + (root / "xdg").string();
        if (variable == "SNAP")
            return snap;
        return "";
    };
};

const std::string foreign = "[Desktop Entry]\nType=Application\nName=Mine\nExec=true --mine\n";

TEST_F(XdgSessionStartTest, IsOffUntilAskedFor) {
    EXPECT_TRUE(made().isOffered());
    EXPECT_FALSE(made().isOn());
    EXPECT_FALSE(fs::exists(entry));
}

TEST_F(XdgSessionStartTest, WritesAnEntryAndTakesItAwayAgain) {
    XdgSessionStart start = made();
    EXPECT_TRUE(start.setOn(true));
    EXPECT_TRUE(start.isOn());
    EXPECT_TRUE(made().isOn());
    EXPECT_NE(contents(entry).find("quillon"), std::string::npos);
    EXPECT_EQ(filesBesideEntry().size(), 1U);
    struct stat status {};
    ASSERT_EQ(::stat(entry.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0022, 0U) << "nobody else may write it";
    EXPECT_EQ(status.st_mode & 0111, 0U);
    EXPECT_TRUE(start.setOn(false));
    EXPECT_FALSE(start.isOn());
    EXPECT_TRUE(filesBesideEntry().empty());
}

TEST_F(XdgSessionStartTest, NothingIsWrittenForWhatIsSo) {
    write(entry, foreign);
    EXPECT_TRUE(made().setOn(true));
    EXPECT_EQ(contents(entry), foreign);
}

TEST_F(XdgSessionStartTest, TheUsersOwnEntryIsSwitchedAndKept) {
    write(entry, foreign);
    EXPECT_TRUE(made().isOn());
    EXPECT_TRUE(made().setOn(false));
    EXPECT_FALSE(made().isOn());
    EXPECT_NE(contents(entry).find("Exec=true --mine\n"), std::string::npos);
    EXPECT_TRUE(made().setOn(true));
    EXPECT_TRUE(made().isOn());
    EXPECT_NE(contents(entry).find("Exec=true --mine\n"), std::string::npos);
}

TEST_F(XdgSessionStartTest, AnEntryOfAProgramThatIsGoneIsWrittenAnew) {
    write(entry, "[Desktop Entry]\nType=Application\nName=Old\nExec=/gone/quillon\n");
    EXPECT_FALSE(made().isOn());
    EXPECT_TRUE(made().setOn(true));
    EXPECT_TRUE(made().isOn());
    EXPECT_EQ(contents(entry).find("/gone"), std::string::npos);
}

TEST_F(XdgSessionStartTest, ABrokenEntryIsOffAndIsWrittenAnew) {
    for (const std::string& broken : {std::string("nonsense"), std::string(100'000, 'x'), std::string()}) {
        write(entry, broken);
        EXPECT_FALSE(made().isOn());
        EXPECT_TRUE(made().setOn(true));
        EXPECT_TRUE(made().isOn());
    }
}

TEST_F(XdgSessionStartTest, TheComputersEntryCountsUntilTheUserSaysOtherwise) {
    write(systemEntry, foreign);
    EXPECT_TRUE(made().isOn());
    EXPECT_TRUE(made().setOn(false));
    EXPECT_FALSE(made().isOn());
    EXPECT_TRUE(fs::exists(entry)) << "one that hides the computer's";
    EXPECT_TRUE(made().setOn(true));
    EXPECT_TRUE(made().isOn());
    EXPECT_TRUE(made().setOn(false));
    EXPECT_FALSE(made().isOn());
    EXPECT_EQ(contents(systemEntry), foreign);
}

TEST_F(XdgSessionStartTest, AHiddenEntryOfTheComputersIsOff) {
    write(systemEntry, foreign + "Hidden=true\n");
    EXPECT_FALSE(made().isOn());
    EXPECT_TRUE(made().setOn(true));
    EXPECT_TRUE(made().isOn());
    EXPECT_TRUE(made().setOn(false));
    EXPECT_FALSE(fs::exists(entry));
}

TEST_F(XdgSessionStartTest, AFolderInItsPlaceIsNotTouched) {
    fs::create_directories(entry / "inside");
    EXPECT_FALSE(made().isOn());
    EXPECT_FALSE(made().setOn(true));
    EXPECT_FALSE(made().isOn());
    EXPECT_TRUE(fs::exists(entry / "inside"));
}

TEST_F(XdgSessionStartTest, AFileInTheFoldersPlaceIsAnError) {
    write(root / "config", "no folder");
    EXPECT_FALSE(made().setOn(true));
    EXPECT_FALSE(made().isOn());
}

TEST_F(XdgSessionStartTest, APipeIsNotWaitedFor) {
    fs::create_directories(entry.parent_path());
    ASSERT_EQ(::mkfifo(entry.c_str(), 0600), 0);
    EXPECT_FALSE(made().isOn());
}

TEST_F(XdgSessionStartTest, ALinkedEntryStaysALink) {
    const fs::path linked = root / "dotfiles/entry";
    write(linked, foreign + "Hidden=true\n");
    fs::create_directories(entry.parent_path());
    fs::create_symlink(linked, entry);
    EXPECT_TRUE(made().setOn(true));
    EXPECT_TRUE(made().isOn());
    EXPECT_TRUE(fs::is_symlink(entry));
}

TEST_F(XdgSessionStartTest, IsNotOfferedInASandbox) {
    snap = "/snap/quillon/1";
    EXPECT_FALSE(made().isOffered());
    EXPECT_FALSE(made().setOn(true));
    snap.clear();
    write(sandboxNotice, "[Application]\n");
    EXPECT_FALSE(made().isOffered());
    EXPECT_FALSE(made().setOn(true));
    EXPECT_FALSE(fs::exists(entry));
}

TEST_F(XdgSessionStartTest, IsNotOfferedWithoutAHome) {
    EXPECT_FALSE(
        XdgSessionStart({executable, sandboxNotice}, [](const char*) { return std::string(); }).isOffered());
}

} // namespace
} // namespace quillon
