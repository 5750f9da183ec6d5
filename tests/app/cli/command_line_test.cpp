#include <quillon/app/cli/command_line.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

Command parse(std::initializer_list<const char*> arguments) {
    QStringList list;
    for (const char* argument : arguments)
        list << QString::fromUtf8(argument);
    return parseCommandLine(list);
}

std::string errorOf(const Command& command) {
    const auto* error = std::get_if<UsageError>(&command);
    return error ? error->message : "no error";
}

TEST(CommandLine, AloneRunsTheProgram) {
    EXPECT_EQ(parse({}), Command(RunCommand{}));
    EXPECT_EQ(parse({"--service"}), Command(ServeCommand{}));
}

TEST(CommandLine, StatsAreOfOneApplicationOrOfAll) {
    EXPECT_EQ(parse({"stats"}), Command(StatsCommand{}));
    EXPECT_EQ(
        parse({"stats", "--app", "geany", "--format", "json"}),
        Command(StatsCommand{.appName = "geany", .format = StatsFormat::json}));
    EXPECT_EQ(
        errorOf(parse({"stats", "--format", "markdown"})),
        "--format is text or json, not 'markdown'; see quillon --help");
    EXPECT_NE(errorOf(parse({"stats", "--pid", "1"})), "no error");
}

TEST(CommandLine, KnowsItsPlainCommands) {
    EXPECT_EQ(parse({"apps"}), Command(AppsCommand{}));
    EXPECT_EQ(parse({"doctor"}), Command(DoctorCommand{}));
    EXPECT_EQ(parse({"quit"}), Command(QuitCommand{}));
    EXPECT_EQ(parse({"show"}), Command(ShowCommand{}));
    EXPECT_EQ(parse({"show", "--sample"}), Command(ShowCommand{true}));
}

TEST(CommandLine, EveryWindowIsOpenedByItsIdentifier) {
    for (const WindowName name : allWindowNames) {
        const std::string command(identifier(name));
        EXPECT_EQ(parse({command.c_str()}), Command(WindowCommand{.window = name}));
        EXPECT_NE(errorOf(parse({command.c_str(), "now"})), "no error");
        if (name != WindowName::practice) {
            EXPECT_NE(errorOf(parse({command.c_str(), "--app", "geany"})), "no error");
        }
    }
}

TEST(CommandLine, PracticeMayBeOfOneApplication) {
    EXPECT_EQ(
        parse({"practice", "--app", "geany"}),
        Command(WindowCommand{.window = WindowName::practice, .appName = "geany"}));
    EXPECT_NE(errorOf(parse({"practice", "--app"})), "no error");
    EXPECT_NE(errorOf(parse({"practice", "--pid", "1"})), "no error");
}

TEST(CommandLine, ASheetIsOfTheFrontApplicationAsText) {
    EXPECT_EQ(parse({"sheet"}), Command(SheetCommand{}));
    EXPECT_EQ(parse({"sheet", "--front"}), Command(SheetCommand{}));
}

TEST(CommandLine, ASheetTakesItsOptionsInAnyOrder) {
    SheetCommand expected;
    expected.appName = "Geany";
    expected.query = "cmd shift s";
    expected.format = SheetFormat::json;
    EXPECT_EQ(
        parse({"sheet", "--format", "json", "--app", "Geany", "--query", "cmd shift s"}), Command(expected));
    EXPECT_EQ(parse({"sheet", "--query=cmd shift s", "--app=Geany", "--format=json"}), Command(expected));
}

TEST(CommandLine, ASheetTakesAProcessNumber) {
    SheetCommand expected;
    expected.pid = 4711;
    EXPECT_EQ(parse({"sheet", "--pid", "4711"}), Command(expected));
    for (const char* wrong : {"0", "-5", "abc", "", "12x", "99999999999999999999"})
        EXPECT_NE(errorOf(parse({"sheet", "--pid", wrong})).find("--pid"), std::string::npos) << wrong;
}

TEST(CommandLine, ASheetIsPrintedAsMarkdown) {
    SheetCommand expected;
    expected.format = SheetFormat::markdown;
    EXPECT_EQ(parse({"sheet", "--format", "markdown"}), Command(expected));
}

TEST(CommandLine, ASheetIsWrittenAsADocument) {
    SheetCommand expected;
    expected.format = SheetFormat::pdf;
    EXPECT_EQ(parse({"sheet", "--format", "pdf"}), Command(expected));
    expected.output = "My sheet.pdf";
    EXPECT_EQ(parse({"sheet", "--format", "pdf", "--output", "My sheet.pdf"}), Command(expected));
    EXPECT_EQ(
        errorOf(parse({"sheet", "--output", "My sheet.pdf"})),
        "--output needs --format pdf; see quillon --help");
    EXPECT_EQ(
        errorOf(parse({"sheet", "--format", "pdf", "--output", ""})),
        "--output takes the name of a file; see quillon --help");
    EXPECT_NE(
        errorOf(parse({"sheet", "--practice", "1", "--format", "pdf"})).find("--practice"),
        std::string::npos);
}

TEST(CommandLine, KeysAreShownAsSymbolsOrByName) {
    SheetCommand sheet;
    sheet.keys = KeyLabels::names;
    EXPECT_EQ(parse({"sheet", "--keys", "names"}), Command(sheet));
    EXPECT_EQ(parse({"sheet", "--keys", "symbols"}), Command(SheetCommand{}));
    StatsCommand stats;
    stats.keys = KeyLabels::names;
    EXPECT_EQ(parse({"stats", "--keys", "names"}), Command(stats));
    for (const char* command : {"sheet", "stats"})
        EXPECT_EQ(
            errorOf(parse({command, "--keys", "words"})),
            "--keys is symbols or names, not 'words'; see quillon --help");
    EXPECT_NE(errorOf(parse({"apps", "--keys", "names"})), "no error");
}

TEST(CommandLine, APracticeRoundTakesACountAndASeed) {
    SheetCommand expected;
    expected.practice = PracticeRequest{10, std::nullopt};
    EXPECT_EQ(parse({"sheet", "--practice", "10"}), Command(expected));
    expected.practice->seed = 18446744073709551615ULL;
    EXPECT_EQ(parse({"sheet", "--practice", "10", "--seed", "18446744073709551615"}), Command(expected));
    for (const char* wrong : {"0", "-1", "ten"})
        EXPECT_NE(errorOf(parse({"sheet", "--practice", wrong})).find("--practice"), std::string::npos);
    for (const char* wrong : {"-1", "x", "18446744073709551616"})
        EXPECT_NE(
            errorOf(parse({"sheet", "--practice", "1", "--seed", wrong})).find("--seed"), std::string::npos);
    EXPECT_NE(errorOf(parse({"sheet", "--seed", "1"})).find("--practice"), std::string::npos);
    EXPECT_NE(
        errorOf(parse({"sheet", "--practice", "1", "--format", "markdown"})).find("--practice"),
        std::string::npos);
}

TEST(CommandLine, RefusesTwoApplications) {
    EXPECT_NE(errorOf(parse({"sheet", "--app", "a", "--front"})).find("exclude"), std::string::npos);
    EXPECT_NE(errorOf(parse({"sheet", "--app", "a", "--pid", "1"})).find("exclude"), std::string::npos);
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    EXPECT_NE(errorOf(parse({"dance"})).find("unknown command 'dance'"), std::string::npos);
    EXPECT_NE(errorOf(parse({"apps", "geany"})).find("'geany'"), std::string::npos);
    EXPECT_NE(errorOf(parse({"sheet", "--colour"})).find("colour"), std::string::npos);
    EXPECT_NE(errorOf(parse({"sheet", "--format", "xml"})).find("xml"), std::string::npos);
    EXPECT_NE(errorOf(parse({"sheet", "--app"})).find("app"), std::string::npos);
}

TEST(CommandLine, ErrorsAreOneLineThatSaysWhereToLook) {
    for (const Command& command :
         {parse({"dance"}), parse({"sheet", "--pid", "x"}), parse({"show", "now"})}) {
        const std::string message = errorOf(command);
        EXPECT_EQ(message.find('\n'), std::string::npos) << message;
        EXPECT_NE(message.find("quillon --help"), std::string::npos) << message;
    }
}

TEST(CommandLine, ErrorsFitIntoTheirLine) {
    EXPECT_EQ(errorOf(parse({"sheet", "--colour"})), "unknown option 'colour'; see quillon --help");
    EXPECT_EQ(errorOf(parse({"dance"})), "unknown command 'dance'; see quillon --help");
}

TEST(CommandLine, VerboseStandsBeforeTheCommand) {
    QStringList arguments{u"--verbose"_s, u"apps"_s};
    EXPECT_TRUE(takeVerbose(arguments));
    EXPECT_EQ(arguments, QStringList{u"apps"_s});
    EXPECT_FALSE(takeVerbose(arguments));
    QStringList query{u"sheet"_s, u"--query"_s, u"--verbose"_s};
    EXPECT_FALSE(takeVerbose(query));
    EXPECT_EQ(query.size(), 3);
}

TEST(CommandLine, HelpWinsAnywhere) {
    for (const Command& command : {parse({"--help"}), parse({"sheet", "--help"}), parse({"-h"})}) {
        const auto* print = std::get_if<PrintCommand>(&command);
        ASSERT_TRUE(print);
        EXPECT_NE(print->text.find("Usage: quillon"), std::string::npos);
    }
}

TEST(CommandLine, TellsItsVersion) {
    const Command command = parse({"--version"});
    const auto* print = std::get_if<PrintCommand>(&command);
    ASSERT_TRUE(print);
    EXPECT_EQ(print->text.find("quillon "), 0U);
}

} // namespace
} // namespace quillon
