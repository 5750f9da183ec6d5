#include <quillon/tests/support/system/lonely_pipe.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <quillon/app/platform/linux/applications/process_facts.h>

#include <gtest/gtest.h>

#include <unistd.h>

namespace quillon {
namespace {

using namespace std::string_view_literals;

TEST(FlatpakInfoTest, TheNameIsThatOfTheApplicationGroup) {
    EXPECT_EQ(
        flatpakIDFrom("[Instance]\nname=wrong\n[Application]\nname=org.inkscape.Inkscape\nruntime=x\n"),
        "org.inkscape.Inkscape");
    EXPECT_EQ(flatpakIDFrom("[Application]\r\n name = org.example.App \r\n"), "org.example.App");
    EXPECT_EQ(flatpakIDFrom("[Application]\nruntime=x\n[Context]\nname=wrong\n"), "");
    EXPECT_EQ(flatpakIDFrom(""), "");
}

TEST(SnapLabelTest, NamesTheSnapAndItsCommand) {
    EXPECT_EQ(snapEntryIDFrom("snap.firefox.firefox (enforce)\n"), "firefox_firefox");
    EXPECT_EQ(snapEntryIDFrom("snap.gnome-calculator.gnome-calculator"), "gnome-calculator_gnome-calculator");
    EXPECT_EQ(snapEntryIDFrom("unconfined\n"), "");
    EXPECT_EQ(snapEntryIDFrom("/usr/bin/evince (enforce)"), "");
    EXPECT_EQ(snapEntryIDFrom("snap.one"), "");
    EXPECT_EQ(snapEntryIDFrom(""), "");
}

TEST(SnapLabelTest, MayEndInANul) {
    EXPECT_EQ(snapEntryIDFrom("snap.gimp.gimp\0"sv), "gimp_gimp");
    EXPECT_EQ(snapEntryIDFrom("snap.gimp.gimp\n\0"sv), "gimp_gimp");
}

TEST(ControlGroupTest, NamesTheApplicationOfADesktopUnit) {
    const std::string slice = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";
    EXPECT_EQ(controlGroupIDFrom(slice + "app-gnome-org.gnome.gedit-1234.scope\n"), "org.gnome.gedit");
    EXPECT_EQ(controlGroupIDFrom(slice + "app-org.kde.kate-5f3e.scope"), "org.kde.kate");
    EXPECT_EQ(controlGroupIDFrom(slice + "app-gnome-firefox\\x2desr-99.scope"), "firefox-esr");
    EXPECT_EQ(controlGroupIDFrom(slice + "app-org.gnome.Terminal.service"), "org.gnome.Terminal");
    EXPECT_EQ(controlGroupIDFrom(slice + "app-flatpak-org.gimp.GIMP@12ab.service"), "org.gimp.GIMP");
    EXPECT_EQ(controlGroupIDFrom(slice + "app-org.kde.konsole-1.scope/tab(2).scope"), "org.kde.konsole");
}

TEST(ControlGroupTest, OtherUnitsNameNone) {
    EXPECT_EQ(controlGroupIDFrom("0::/user.slice/user-1000.slice/session-2.scope\n"), "");
    EXPECT_EQ(controlGroupIDFrom("12:pids:/user.slice\n0::/init.scope\n"), "");
    EXPECT_EQ(controlGroupIDFrom("0::/app-something.slice"), "");
    EXPECT_EQ(controlGroupIDFrom(""), "");
}

TEST(InterpreterTest, VersionsAndVariantsCountToo) {
    for (const char* program :
         {"python3.11", "python3", "bash", "java", "gjs-console", "perl5.36.0", "wish8.6"})
        EXPECT_TRUE(isInterpreter(program)) << program;
    for (const char* program : {"gimp-2.10", "javac-editor2", "pythonista", "geany", ""})
        EXPECT_FALSE(isInterpreter(program)) << program;
}

struct ReadProcessTest : testing::Test {
    TemporaryFolder folder;

    void link(const std::string& process, const std::string& program) {
        std::filesystem::create_directories(folder.path() / process);
        std::filesystem::create_symlink(program, folder.path() / process / "exe");
    }
    ProcessFacts read(std::int64_t pid) { return readProcess(pid, folder.path().string()); }
};

TEST_F(ReadProcessTest, GathersWhatTheSystemTells) {
    link("12", "/opt/bin/sketchpad");
    folder.write("12/root/.flatpak-info", "[Application]\nname=org.example.Sketch\n");
    folder.write("12/attr/current", "snap.sketch.pad (enforce)\n");
    folder.write("12/cgroup", "0::/app.slice/app-gnome-org.example.Sketch-7.scope\n");
    EXPECT_EQ(
        read(12), (ProcessFacts{"org.example.Sketch", "sketch_pad", "org.example.Sketch", "sketchpad"}));
}

TEST_F(ReadProcessTest, AProcessThatIsGoneTellsNothing) {
    EXPECT_EQ(read(99), ProcessFacts());
}

TEST_F(ReadProcessTest, AProgramThatWasReplacedKeepsItsName) {
    link("12", "/usr/bin/geany (deleted)");
    EXPECT_EQ(read(12).executable, "geany");
}

TEST_F(ReadProcessTest, AScriptGoesByItsOwnName) {
    link("12", "/usr/bin/python3.11");
    folder.write("12/comm", "meld\n");
    EXPECT_EQ(read(12).executable, "meld");
    link("13", "/usr/bin/python3.11");
    folder.write("13/comm", "python3\n");
    EXPECT_EQ(read(13).executable, "");
}

TEST_F(ReadProcessTest, AProgramThatMayNotBeLookedAtGoesByItsShortName) {
    folder.write("12/comm", "secretive\n");
    EXPECT_EQ(read(12).executable, "secretive");
}

TEST_F(ReadProcessTest, AFileThatIsFarTooLongTellsNothing) {
    folder.write("12/cgroup", "0::/app-a-7.scope\n");
    EXPECT_EQ(read(12).controlGroupID, "a");
    folder.write("12/cgroup", "0::/app-a-7.scope\n" + std::string(1'000'000, 'x'));
    EXPECT_EQ(read(12).controlGroupID, "");
}

TEST_F(ReadProcessTest, APipeIsNotWaitedFor) {
    std::int64_t pid = 12;
    for (const char* file : {"root/.flatpak-info", "attr/current", "cgroup", "comm"}) {
        const LonelyPipe pipe(folder.path() / std::to_string(++pid) / file);
        ASSERT_TRUE(pipe.exists());
        EXPECT_TRUE(pipe.resultOf([this, pid] { return read(pid); }) == ProcessFacts()) << file;
    }
}

TEST(ReadThisProcessTest, ItsProgramIsThisTest) {
    EXPECT_EQ(readProcess(::getpid(), "/proc").executable, "applications_test");
}

} // namespace
} // namespace quillon
