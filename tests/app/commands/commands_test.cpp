#include <quillon/app/commands/commands.h>
#include <quillon/app/platform/fake/fake_application_list.h>
#include <quillon/app/platform/fake/fake_cheat_sheet_exports.h>
#include <quillon/app/platform/fake/fake_clock.h>
#include <quillon/app/platform/fake/fake_menu_reader.h>
#include <quillon/app/platform/fake/fake_running_program.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gtest/gtest.h>

#include <array>
#include <fstream>

#include <fcntl.h>
#include <pty.h>

namespace quillon {
namespace {

/// What is written to a file without a name.
class Written {
  public:
    Written() : m_file(::open("/tmp", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600)) {}
    ~Written() { ::close(m_file); }
    Written(const Written&) = delete;
    Written& operator=(const Written&) = delete;

    int file() const { return m_file; }
    std::string text() const {
        std::string text;
        std::array<char, 4096> part{};
        for (ssize_t count = 0;
             (count = ::pread(m_file, part.data(), part.size(), static_cast<off_t>(text.size()))) > 0;)
            text.append(part.data(), static_cast<std::size_t>(count));
        return text;
    }

  private:
    int m_file;
};

RawMenuItem item(const char* title, const char* character) {
    RawMenuItem made;
    made.title = title;
    made.cmdChar = character;
    return made;
}

MenuReading menus(std::vector<RawMenuItem> items) {
    RawMenuItem file;
    file.title = "File";
    file.children = std::move(items);
    return {{file}, ReadOutcome::complete};
}

class CommandsTest : public testing::Test {
  protected:
    CommandsTest() {
        applications.running = {
            {{10, "org.example.sketch", "Sketch", {}}, "gtk 3"}, {{20, "", "Nameless", {}}, ""}};
        applications.inFront = applications.running[0].app;
        reader.answer(10, menus({item("New", "N"), item("Save", "S")}));
        reader.answer(20, menus({item("Open", "O")}));
    }

    ExitCode sheet(const SheetCommand& command = {}) {
        return runSheet(command, {applications, reader, exports, clock}, folder.path(), output);
    }

    TemporaryFolder folder;
    FakeApplicationList applications;
    FakeMenuReader reader;
    FakeCheatSheetExports exports;
    FakeClock clock;
    FakeRunningProgram program;
    Written results;
    Written messages;
    Output output{results.file(), messages.file()};
};

TEST_F(CommandsTest, AppsListsThoseThatShareMenus) {
    applications.running.push_back({{30, "mute", "Mute", {}}, "Qt"});
    EXPECT_EQ(runApps(applications, reader, output), ExitCode::success);
    EXPECT_EQ(results.text(), "10  org.example.sketch  Sketch    gtk 3\n20  -                   Nameless\n");
    EXPECT_EQ(messages.text(), "");
}

TEST_F(CommandsTest, AnObstacleIsTheSameForAllThatReadMenus) {
    applications.problem = "accessibility is off";
    EXPECT_EQ(runApps(applications, reader, output), ExitCode::noAccessibility);
    EXPECT_EQ(sheet(), ExitCode::noAccessibility);
    EXPECT_EQ(results.text(), "");
    EXPECT_EQ(messages.text(), "quillon: accessibility is off\nquillon: accessibility is off\n");
}

struct StatsCommandTest : CommandsTest {
    ExitCode stats(const StatsCommand& command = {}) { return runStats(command, folder.path(), output); }
    void have(const char* file, std::string_view text) { std::ofstream(folder.path() / file) << text; }

    static constexpr std::string_view counted =
        R"({"apps":{"org.example.sketch":{"File › Save":{"clicked":2,"practiceRight":0,"practiceWrong":0,"typed":8},)"
        R"("File › Gone\u001b":{"clicked":1,"practiceRight":0,"practiceWrong":0,"typed":0}},)"
        R"("other":{"A":{"clicked":0,"practiceRight":0,"practiceWrong":0,"typed":1}}}})";
    static constexpr std::string_view menus =
        R"({"org.example.sketch":{"appName":"Sketch","bundleID":"org.example.sketch","entries":[{"enabled":true,)"
        R"("path":["File","Save"],"shortcut":{"key":{"char":{"_0":"S"}},"modifiers":1}}],"readAt":"2024-05-01T09:30:00Z"}})";
};

TEST_F(StatsCommandTest, PrintsWhatWasCounted) {
    have("usage.json", counted);
    have("menus.json", menus);
    EXPECT_EQ(stats(), ExitCode::success);
    EXPECT_EQ(
        results.text(), "Sketch (org.example.sketch): clicked 3, typed 8, clicks replaced by typing 8\n"
                        "  File › Gone<U+001B>  -   clicked 1  typed 0\n"
                        "  File › Save          ⌃S  clicked 2  typed 8  learned\n"
                        "\n"
                        "other: clicked 0, typed 1, clicks replaced by typing 0\n"
                        "  A  -  clicked 0  typed 1\n");
    EXPECT_EQ(messages.text(), "");
}

TEST_F(StatsCommandTest, OfOneApplicationForPrograms) {
    have("usage.json", counted);
    have("menus.json", menus);
    EXPECT_EQ(stats({.appName = "sketch", .format = StatsFormat::json}), ExitCode::success);
    EXPECT_EQ(
        results.text(),
        R"([{"appName":"Sketch","bundleID":"org.example.sketch","clicked":3,"commands":[)"
        "{\"clicked\":1,\"graduated\":false,\"id\":\"File › Gone\\u001b\",\"typed\":0},"
        R"({"clicked":2,"graduated":true,"id":"File › Save","shortcut":{"key":{"char":{"_0":"S"}},"modifiers":1},"typed":8}],)"
        "\"replaced\":8,\"typed\":8}]\n");
}

TEST_F(StatsCommandTest, SaysWhenThereIsNothing) {
    EXPECT_EQ(stats(), ExitCode::success);
    EXPECT_EQ(stats({.appName = {}, .format = StatsFormat::json}), ExitCode::success);
    EXPECT_EQ(stats({.appName = "sk\x1b", .format = StatsFormat::text}), ExitCode::noSuchApp);
    EXPECT_EQ(results.text(), "[]\n");
    EXPECT_EQ(
        messages.text(), "quillon: nothing was counted yet\nquillon: nothing was counted yet\n"
                         "quillon: nothing was counted of an application called 'sk<U+001B>'\n");
    EXPECT_EQ(runStats({}, {}, output), ExitCode::failure);
}

TEST_F(StatsCommandTest, NamesTheFileThatCannotBeMadeOut) {
    have("usage.json", "[]");
    EXPECT_EQ(stats(), ExitCode::failure);
    EXPECT_EQ(results.text(), "");
    EXPECT_NE(messages.text().find((folder.path() / "usage.json").string()), std::string::npos);
    have("usage.json", counted);
    have("menus.json", "[]");
    EXPECT_EQ(stats(), ExitCode::failure);
    EXPECT_NE(results.text().find("File › Save          -"), std::string::npos) << "what can be said";
    EXPECT_NE(messages.text().find((folder.path() / "menus.json").string()), std::string::npos);
}

struct PracticeCommandTest : StatsCommandTest {
    PracticeCommandTest() { have("menus.json", menus); }
    std::variant<std::string, ExitCode> find(const std::string& name) {
        return appToPractise(name, folder.path(), output);
    }
};

TEST_F(PracticeCommandTest, IsForAnApplicationThatWasRead) {
    for (const char* name : {"org.example.sketch", "SKETCH"})
        EXPECT_EQ(std::get<std::string>(find(name)), "org.example.sketch") << name;
    EXPECT_EQ(messages.text(), "");
}

TEST_F(PracticeCommandTest, AnotherIsUnknown) {
    EXPECT_EQ(std::get<ExitCode>(find("geany")), ExitCode::noSuchApp);
    EXPECT_EQ(std::get<ExitCode>(appToPractise("geany", {}, output)), ExitCode::noSuchApp) << "no home";
    const std::string said =
        "quillon: the shortcuts of an application called 'geany' have not been read yet\n";
    EXPECT_EQ(messages.text(), said + said);
}

TEST_F(PracticeCommandTest, AFileThatCannotBeMadeOutIsNamed) {
    have("menus.json", "{");
    EXPECT_EQ(std::get<ExitCode>(find("sketch")), ExitCode::failure);
    EXPECT_NE(messages.text().find("menus.json"), std::string::npos);
}

TEST_F(CommandsTest, SheetIsOfTheFrontApplication) {
    EXPECT_EQ(sheet(), ExitCode::success);
    EXPECT_EQ(results.text(), "Sketch (org.example.sketch): 2 shortcuts\n\nFile\n  New   ⌘N\n  Save  ⌘S\n");
    EXPECT_EQ(messages.text(), "");
}

TEST_F(CommandsTest, AQueryWithoutAMatchSaysSo) {
    SheetCommand command;
    command.query = "zz\x1bzz";
    EXPECT_EQ(sheet(command), ExitCode::success);
    command.practice = PracticeRequest{5, 1};
    EXPECT_EQ(sheet(command), ExitCode::success);
    const std::string said = "quillon: no shortcut of Sketch matches 'zz<U+001B>zz'\n";
    EXPECT_EQ(messages.text(), said + said);
}

TEST_F(CommandsTest, TellsWhatIsMissing) {
    SheetCommand command;
    command.appName = "a\nb";
    EXPECT_EQ(sheet(command), ExitCode::noSuchApp);
    applications.inFront.reset();
    EXPECT_EQ(sheet(), ExitCode::noSuchApp);
    EXPECT_EQ(
        messages.text(), "quillon: no running application is called 'a<U+000A>b'; see quillon apps\n"
                         "quillon: no application is in front; name one with --app, see quillon apps\n");
}

TEST_F(CommandsTest, AnApplicationWithoutShortcutsHasNoSheet) {
    reader.answer(10, {{}, ReadOutcome::partial});
    EXPECT_EQ(sheet(), ExitCode::noShortcuts);
    EXPECT_EQ(results.text(), "");
    EXPECT_EQ(messages.text(), "quillon: Sketch does not answer; try again when it does\n");
    EXPECT_EQ(reader.asked().size(), 3U);
}

TEST_F(CommandsTest, OneThatToldOnlyWhatItsMenusAreCalledHasToldNothing) {
    MenuReading reading = menus({});
    reading.outcome = ReadOutcome::partial;
    reader.answer(10, reading);
    EXPECT_EQ(sheet(), ExitCode::noShortcuts);
    EXPECT_EQ(reader.asked().size(), 3U);
}

TEST_F(CommandsTest, AnApplicationWithoutMenusIsAskedOnce) {
    reader.answer(10, {{}, ReadOutcome::noMenuBar});
    EXPECT_EQ(sheet(), ExitCode::noShortcuts);
    EXPECT_EQ(reader.asked().size(), 1U);
}

TEST_F(CommandsTest, WhatWasReadOfAnApplicationThatStoppedAnsweringIsPrinted) {
    MenuReading reading = menus({item("New", "N")});
    reading.outcome = ReadOutcome::partial;
    reader.answer(10, reading);
    EXPECT_EQ(sheet(), ExitCode::success);
    EXPECT_NE(results.text().find("New"), std::string::npos);
    EXPECT_EQ(messages.text(), "quillon: Sketch stopped answering; the sheet is not complete\n");
    EXPECT_EQ(reader.asked().size(), 1U);
}

struct BusyAtFirst final : MenuReader {
    int readings = 0;
    MenuReading readMenus(const RunningApp&, std::stop_token) override {
        return ++readings < 3 ? MenuReading{{}, ReadOutcome::partial} : menus({item("New", "N")});
    }
};

TEST_F(CommandsTest, AnApplicationThatWasBusyForAMomentIsListed) {
    BusyAtFirst busy;
    applications.running.pop_back();
    EXPECT_EQ(runApps(applications, busy, output), ExitCode::success);
    EXPECT_NE(results.text().find("Sketch"), std::string::npos);
}

TEST_F(CommandsTest, AnApplicationThatWasBusyForAMomentHasItsSheet) {
    BusyAtFirst busy;
    EXPECT_EQ(runSheet({}, {applications, busy, exports, clock}, folder.path(), output), ExitCode::success);
    EXPECT_EQ(messages.text(), "");
}

TEST_F(CommandsTest, JsonIsForProgramsAndNotForTerminals) {
    reader.answer(10, menus({item("a\u202eb", "N")}));
    SheetCommand command;
    command.format = SheetFormat::json;
    EXPECT_EQ(sheet(command), ExitCode::success);
    EXPECT_NE(results.text().find("a\u202eb"), std::string::npos);
}

struct DocumentTest : CommandsTest {
    DocumentTest() { command.format = SheetFormat::pdf; }

    SheetCommand command;
};

TEST_F(DocumentTest, IsWrittenToTheFileThatWasAskedFor) {
    command.output = "/somewhere/sheet.pdf";
    EXPECT_EQ(sheet(command), ExitCode::success);
    ASSERT_EQ(exports.saved.size(), 1U);
    EXPECT_EQ(exports.saved[0].first, exports.document);
    EXPECT_EQ(exports.saved[0].second, "/somewhere/sheet.pdf");
    EXPECT_EQ(exports.made.at(0).sheet.appName, "Sketch");
    EXPECT_FALSE(exports.made.at(0).withNames);
    EXPECT_EQ(results.text(), "");
}

TEST_F(DocumentTest, HasTheNotesAndTheKeysThatWereAskedFor) {
    std::ofstream(folder.path() / "notes.json")
        << R"({"apps":{"org.example.sketch":{"File › Save":{"muted":false,"note":"mine","pinned":true}}}})";
    command.keys = KeyLabels::names;
    command.query = "save";
    EXPECT_EQ(sheet(command), ExitCode::success);
    EXPECT_TRUE(exports.made.at(0).withNames);
    EXPECT_EQ(exports.made.at(0).sheet.entries.size(), 1U);
    EXPECT_EQ(exports.made.at(0).annotations.at("File › Save").note, "mine");
}

TEST_F(DocumentTest, IsNotMadeWithoutAMatch) {
    command.query = "nothing like it";
    EXPECT_EQ(sheet(command), ExitCode::failure);
    EXPECT_EQ(messages.text(), "quillon: no shortcut of Sketch matches 'nothing like it'\n");
    EXPECT_TRUE(exports.made.empty());
}

TEST_F(DocumentTest, GoesByteByByteToAnotherProgram) {
    exports.document = std::string("%PDF\0\n\x1b", 7);
    EXPECT_EQ(sheet(command), ExitCode::success);
    EXPECT_EQ(results.text(), exports.document);
    EXPECT_TRUE(exports.saved.empty());
}

TEST_F(DocumentTest, IsNotForATerminal) {
    int ours = -1;
    int terminal = -1;
    ASSERT_EQ(::openpty(&ours, &terminal, nullptr, nullptr, nullptr), 0);
    Output shown(terminal, messages.file());
    EXPECT_EQ(
        runSheet(command, {applications, reader, exports, clock}, folder.path(), shown), ExitCode::usage);
    EXPECT_EQ(
        messages.text(), "quillon: a PDF document is not for the terminal; name a file with --output\n");
    EXPECT_TRUE(exports.made.empty());
    command.output = "/somewhere/sheet.pdf";
    EXPECT_EQ(
        runSheet(command, {applications, reader, exports, clock}, folder.path(), shown), ExitCode::success);
    ::close(ours);
    ::close(terminal);
}

TEST_F(DocumentTest, ThatCannotBeMadeOrWrittenIsAFailure) {
    command.output = "/somewhere/sheet.pdf";
    exports.saveFailure = ExportFailure{"“/somewhere/sheet.pdf” cannot be written: No such folder."};
    EXPECT_EQ(sheet(command), ExitCode::failure);
    exports.pdfFailure = ExportFailure{"No document."};
    EXPECT_EQ(sheet(command), ExitCode::failure);
    EXPECT_EQ(
        messages.text(),
        "quillon: “/somewhere/sheet.pdf” cannot be written: No such folder.\nquillon: No document.\n");
}

TEST_F(CommandsTest, ASheetThatJsonCannotHoldIsAFailure) {
    applications.running[0].app.name = "Sketch\xff";
    applications.inFront = applications.running[0].app;
    SheetCommand command;
    command.format = SheetFormat::json;
    EXPECT_EQ(output.finish(sheet(command)), ExitCode::failure);
    EXPECT_EQ(results.text(), "");
    EXPECT_EQ(messages.text(), "quillon: a name in the result is not UTF-8, and JSON holds nothing else\n");
}

TEST_F(CommandsTest, QuitSaysWhyItFailed) {
    program.answer = RunningProgram::Answer::done;
    EXPECT_EQ(runQuit(program, output), ExitCode::success);
    EXPECT_EQ(program.asked, std::vector{ProgramRequest::quit});
    using enum RunningProgram::Answer;
    for (const RunningProgram::Answer answer : {notRunning, silent, unreachable}) {
        program.answer = answer;
        EXPECT_EQ(runQuit(program, output), ExitCode::failure);
    }
    EXPECT_EQ(
        messages.text(), "quillon: there is no running instance\n"
                         "quillon: the running instance does not answer\n"
                         "quillon: the session cannot be reached; see quillon doctor\n");
}

/// A desktop of which one thing was looked at.
class OneCheck final : public Diagnosis {
  public:
    std::vector<Check> checks() override { return {check}; }
    Check check{"Display", Check::Result::good, "X11", ""};
};

TEST_F(CommandsTest, DoctorNamesABrokenDataFile) {
    OneCheck desktop;
    EXPECT_EQ(runDoctor(desktop, folder.path(), output), ExitCode::success);
    EXPECT_EQ(
        results.text(),
        "ok      Display       X11\nok      Learned data  in " + folder.path().string() + "\n");

    const auto broken = folder.write("usage.json", R"({"apps":{}} nonsense)");
    const auto aside = folder.write("notes.json.broken-2", "[");
    folder.write("notes.json", R"({"apps":{}})");
    folder.write("other.json", "nonsense");
    EXPECT_EQ(runDoctor(desktop, folder.path(), output), ExitCode::success);
    EXPECT_NE(
        results.text().find("limited Learned data  " + broken.string() + ": byte 12: "), std::string::npos)
        << results.text();
    EXPECT_NE(results.text().find("limited Learned data  " + aside.string() + ": byte "), std::string::npos)
        << results.text();
    EXPECT_EQ(results.text().find("other.json"), std::string::npos);
}

TEST_F(CommandsTest, DoctorFindsNothingWrongWithALinkToAFileThatIsStillToBeWritten) {
    OneCheck desktop;
    std::filesystem::create_symlink(folder.path() / "elsewhere.json", folder.path() / "usage.json");
    EXPECT_EQ(runDoctor(desktop, folder.path(), output), ExitCode::success);
    EXPECT_NE(results.text().find("ok      Learned data"), std::string::npos) << results.text();
}

TEST_F(CommandsTest, DoctorFailsWhenSomethingIsMissing) {
    OneCheck desktop;
    desktop.check.result = Check::Result::missing;
    EXPECT_EQ(runDoctor(desktop, "", output), ExitCode::failure);
    EXPECT_NE(results.text().find("there is no home folder"), std::string::npos);
}

} // namespace
} // namespace quillon
