#include <quillon/app/platform/linux/session/autostart_entry.h>

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace quillon {
namespace {

namespace fs = std::filesystem;

class AutostartEntryTest : public testing::Test {
  protected:
    /// A program that does nothing.
    fs::path program(const std::string& name) const {
        const fs::path path = fs::path(folder.path().toStdString()) / name;
        fs::create_directories(path.parent_path());
        std::ofstream(path) << "#!/bin/sh\n";
        fs::permissions(path, fs::perms::owner_all);
        return path;
    }

    const QTemporaryDir folder;
};

std::string entry(const std::string& rest) {
    return "[Desktop Entry]\nType=Application\nName=A\nExec=true\n" + rest;
}

TEST_F(AutostartEntryTest, WhatIsWrittenStartsTheProgram) {
    EXPECT_TRUE(autostart::startsProgram(autostart::entryFor("true")));
    EXPECT_TRUE(autostart::startsProgram(autostart::entryFor(program("plain"))));
    EXPECT_TRUE(autostart::startsProgram(autostart::entryFor(program("with blank/a \"$`\\ 'name"))));
    EXPECT_FALSE(autostart::startsProgram(autostart::entryFor("/nowhere/at/all")));
}

TEST_F(AutostartEntryTest, WhatIsWrittenIsValid) {
    for (const std::string& executable :
         {std::string("true"), program("plain").string(), program("with blank/a \"$`\\%f' name").string()}) {
        const std::string path = folder.filePath(QStringLiteral("entry.desktop")).toStdString();
        std::ofstream(path) << autostart::entryFor(executable);
        QProcess validator;
        validator.setProcessChannelMode(QProcess::MergedChannels);
        validator.start(QStringLiteral("desktop-file-validate"), {QString::fromStdString(path)});
        ASSERT_TRUE(validator.waitForFinished());
        EXPECT_EQ(validator.exitCode(), 0) << executable;
        EXPECT_EQ(validator.readAll().toStdString(), "") << executable;
    }
}

TEST_F(AutostartEntryTest, EntriesThatAreSwitchedOffDoNotStart) {
    EXPECT_TRUE(autostart::startsProgram(entry("")));
    EXPECT_TRUE(autostart::startsProgram(entry("Hidden=false\nX-GNOME-Autostart-enabled=true\n")));
    EXPECT_TRUE(autostart::startsProgram(entry("NoDisplay=true\n")));
    EXPECT_FALSE(autostart::startsProgram(entry("Hidden=true\n")));
    EXPECT_FALSE(autostart::startsProgram(entry("X-GNOME-Autostart-enabled=false\n")));
    EXPECT_FALSE(autostart::startsProgram(entry("TryExec=/nowhere/at/all\n")));
    EXPECT_FALSE(autostart::startsProgram(entry("OnlyShowIn=AnotherDesktop;\n")));
}

TEST_F(AutostartEntryTest, WhatIsNoEntryDoesNotStart) {
    EXPECT_FALSE(autostart::startsProgram(""));
    EXPECT_FALSE(autostart::startsProgram("nonsense"));
    EXPECT_FALSE(autostart::startsProgram("[Other]\nExec=true\n"));
    EXPECT_FALSE(autostart::startsProgram("[Desktop Entry]\nType=Application\nName=A\n"));
    EXPECT_FALSE(autostart::startsProgram(std::string("\0[Desktop Entry]\n", 17)));
    EXPECT_EQ(autostart::switched("nonsense", true), std::nullopt);
}

TEST_F(AutostartEntryTest, SwitchingKeepsWhatElseIsWritten) {
    const std::string own = entry("# my own\nName[de]=B\nX-Mine=1\nHidden=true\n");
    const auto on = autostart::switched(own, true);
    ASSERT_TRUE(on);
    EXPECT_TRUE(autostart::startsProgram(*on));
    EXPECT_NE(on->find("# my own\nName[de]=B\nX-Mine=1\n"), std::string::npos) << *on;
    const auto off = autostart::switched(*on, false);
    ASSERT_TRUE(off);
    EXPECT_FALSE(autostart::startsProgram(*off));
    EXPECT_NE(off->find("# my own\nName[de]=B\nX-Mine=1\n"), std::string::npos) << *off;
}

TEST_F(AutostartEntryTest, AProgramThatThePathLeadsToIsNamedByItsNameAlone) {
    const fs::path here = program("here/quillon");
    const fs::path there = program("there/quillon");
    const std::string both = there.parent_path().string() + ":" + here.parent_path().string();
    EXPECT_EQ(autostart::nameOf(there, both), "quillon");
    EXPECT_EQ(autostart::nameOf(here, both), here.string()) << "another one would be started";
    EXPECT_EQ(autostart::nameOf(here, "relative::" + here.parent_path().string()), "quillon");
    EXPECT_EQ(autostart::nameOf(here, ""), here.string());
    const fs::path link = here.parent_path().parent_path() / "links";
    fs::create_directory_symlink(here.parent_path(), link);
    EXPECT_EQ(autostart::nameOf(here, link.string()), "quillon");
}

} // namespace
} // namespace quillon
