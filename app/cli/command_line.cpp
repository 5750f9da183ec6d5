#include "command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <array>

namespace quillon {

namespace {

using namespace Qt::StringLiterals;

const char* const helpText = QT_TRANSLATE_NOOP("CommandLine", R"(Usage: quillon [--verbose] [COMMAND]

Teaches the keyboard shortcuts of the applications you already use. Hold the
trigger key (Super) in any application to see its shortcuts.

Commands:
  (none)      start the program, or bring up the one that runs
  show        open the overlay and keep it open
                --sample          with a made-up drawing application
  practice    open the practice window
                --app NAME        for the application with this id or name
  library     open the library of all shortcuts
  settings    open the settings
  welcome     open the welcome
  sheet       print an application's shortcuts
                --app NAME        the application with this id or name
                --pid N           the application of this process
                --front           the front application (default)
                --query Q         only the shortcuts that match Q
                --format FORMAT   text (default), json, markdown or pdf
                --output FILE     of a PDF document; needed unless standard
                                  output goes to a file or another program
                --keys KEYS       symbols (default), or names as they are printed
                                  on the keyboard; JSON is the same with both
                --practice N      a practice round of N commands instead, in the
                                  order in which they are asked
                --seed S          the same round every time
  apps        list the running applications that share their menus
  stats       print what was counted: clicks and typed uses of each command,
              the most clicked first. "learned" are those typed 5 times more
              than clicked; "clicks replaced" are the typed uses of commands
              that were clicked as well
                --app NAME        of the application with this id or name only
                --format FORMAT   text (default) or json
                --keys KEYS       as for sheet
  doctor      say what works on this desktop and how to mend what does not
  quit        end the running program

Options:
  --help      print this text
  --verbose   before the command: tell on standard error what is read, in
              front and shown; never what is typed
  --version   print the version

Exit codes: 0 success, 1 failure, 2 wrong usage, 3 no such application,
4 accessibility is absent or off, 5 the application shares no menu shortcuts.
)");

UsageError unexpected(const QString& what) {
    return {QCoreApplication::translate("CommandLine", "%1; see quillon --help").arg(what).toStdString()};
}

/// The parser's own complaint, made to fit into a message: "Unknown option 'x'." becomes "unknown option
/// 'x'".
QString complaintOf(const QCommandLineParser& parser) {
    QString text = parser.errorText();
    while (text.endsWith(u'.'))
        text.chop(1);
    return text.isEmpty() ? text : QString(text.front().toLower() % text.sliced(1));
}

/// The options of one command: those that take a value and those that do not.
std::optional<UsageError> readOptions(
    QCommandLineParser& parser, const QStringList& arguments, const QList<QCommandLineOption>& options) {
    parser.addOptions(options);
    if (!parser.parse(QStringList{u"quillon"_s} + arguments))
        return unexpected(complaintOf(parser));
    if (!parser.positionalArguments().isEmpty())
        return unexpected(QCoreApplication::translate("CommandLine", "unexpected argument '%1'")
                              .arg(parser.positionalArguments().constFirst()));
    return std::nullopt;
}

std::optional<UsageError> readNoOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    return readOptions(parser, arguments, {});
}

QCommandLineOption withValue(const QString& name) {
    return {name, {}, name};
}

std::optional<std::int64_t> positiveNumber(const QString& text) {
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (!isNumber || number <= 0)
        return std::nullopt;
    return number;
}

std::optional<SheetFormat> sheetFormat(const QString& name) {
    if (name == "text"_L1)
        return SheetFormat::text;
    if (name == "json"_L1)
        return SheetFormat::json;
    if (name == "markdown"_L1)
        return SheetFormat::markdown;
    if (name == "pdf"_L1)
        return SheetFormat::pdf;
    return std::nullopt;
}

/// Reads --keys into `labels`.
std::optional<UsageError>
readKeys(const QCommandLineParser& parser, const QCommandLineOption& keys, KeyLabels& labels) {
    if (!parser.isSet(keys))
        return std::nullopt;
    const QString chosen = parser.value(keys);
    if (chosen != "symbols"_L1 && chosen != "names"_L1)
        return unexpected(
            QCoreApplication::translate("CommandLine", "--keys is symbols or names, not '%1'").arg(chosen));
    labels = chosen == "names"_L1 ? KeyLabels::names : KeyLabels::symbols;
    return std::nullopt;
}

/// Reads --practice and --seed into `command`.
std::optional<UsageError> readPractice(
    const QCommandLineParser& parser, const QCommandLineOption& practice, const QCommandLineOption& seed,
    SheetCommand& command) {
    if (!parser.isSet(practice))
        return parser.isSet(seed) ? std::optional(
                   unexpected(QCoreApplication::translate("CommandLine", "--seed needs --practice")))
                                  : std::nullopt;
    if (command.format != SheetFormat::text && command.format != SheetFormat::json)
        return unexpected(
            QCoreApplication::translate("CommandLine", "--practice is printed as text or json"));
    PracticeRequest request;
    const auto count = positiveNumber(parser.value(practice));
    if (!count)
        return unexpected(
            QCoreApplication::translate("CommandLine", "--practice takes a positive number, not '%1'")
                .arg(parser.value(practice)));
    request.count = *count;
    if (parser.isSet(seed)) {
        bool isNumber = false;
        request.seed = parser.value(seed).toULongLong(&isNumber);
        if (!isNumber)
            return unexpected(
                QCoreApplication::translate("CommandLine", "--seed takes a number from 0 to 2^64-1, not '%1'")
                    .arg(parser.value(seed)));
    }
    command.practice = request;
    return std::nullopt;
}

/// Reads --output into `command`.
std::optional<UsageError>
readOutput(const QCommandLineParser& parser, const QCommandLineOption& output, SheetCommand& command) {
    if (!parser.isSet(output))
        return std::nullopt;
    if (command.format != SheetFormat::pdf)
        return unexpected(QCoreApplication::translate("CommandLine", "--output needs --format pdf"));
    if (parser.value(output).isEmpty())
        return unexpected(QCoreApplication::translate("CommandLine", "--output takes the name of a file"));
    command.output = QFile::encodeName(parser.value(output)).toStdString();
    return std::nullopt;
}

Command parseSheet(const QStringList& arguments) {
    QCommandLineParser parser;
    const QCommandLineOption app = withValue(u"app"_s);
    const QCommandLineOption pid = withValue(u"pid"_s);
    const QCommandLineOption front(u"front"_s);
    const QCommandLineOption query = withValue(u"query"_s);
    const QCommandLineOption format = withValue(u"format"_s);
    const QCommandLineOption output = withValue(u"output"_s);
    const QCommandLineOption practice = withValue(u"practice"_s);
    const QCommandLineOption seed = withValue(u"seed"_s);
    const QCommandLineOption keys = withValue(u"keys"_s);
    if (auto error =
            readOptions(parser, arguments, {app, pid, front, query, format, output, practice, seed, keys}))
        return *error;
    if (int(parser.isSet(app)) + int(parser.isSet(pid)) + int(parser.isSet(front)) > 1)
        return unexpected(
            QCoreApplication::translate("CommandLine", "--app, --pid and --front exclude each other"));

    SheetCommand command;
    if (parser.isSet(app))
        command.appName = parser.value(app).toStdString();
    if (parser.isSet(pid)) {
        command.pid = positiveNumber(parser.value(pid));
        if (!command.pid)
            return unexpected(
                QCoreApplication::translate("CommandLine", "--pid takes a process number, not '%1'")
                    .arg(parser.value(pid)));
    }
    command.query = parser.value(query).toStdString();
    const auto chosenFormat = sheetFormat(parser.isSet(format) ? parser.value(format) : u"text"_s);
    if (!chosenFormat)
        return unexpected(
            QCoreApplication::translate("CommandLine", "--format is text, json, markdown or pdf, not '%1'")
                .arg(parser.value(format)));
    command.format = *chosenFormat;
    if (auto error = readOutput(parser, output, command))
        return *error;
    if (auto error = readPractice(parser, practice, seed, command))
        return *error;
    if (auto error = readKeys(parser, keys, command.keys))
        return *error;
    return command;
}

Command parseShow(const QStringList& arguments) {
    QCommandLineParser parser;
    const QCommandLineOption sample(u"sample"_s);
    if (auto error = readOptions(parser, arguments, {sample}))
        return *error;
    return ShowCommand{parser.isSet(sample)};
}

Command parseStats(const QStringList& arguments) {
    QCommandLineParser parser;
    const QCommandLineOption app = withValue(u"app"_s);
    const QCommandLineOption format = withValue(u"format"_s);
    const QCommandLineOption keys = withValue(u"keys"_s);
    if (auto error = readOptions(parser, arguments, {app, format, keys}))
        return *error;
    StatsCommand command;
    if (parser.isSet(app))
        command.appName = parser.value(app).toStdString();
    const QString chosen = parser.isSet(format) ? parser.value(format) : u"text"_s;
    if (chosen != "text"_L1 && chosen != "json"_L1)
        return unexpected(
            QCoreApplication::translate("CommandLine", "--format is text or json, not '%1'").arg(chosen));
    command.format = chosen == "json"_L1 ? StatsFormat::json : StatsFormat::text;
    if (auto error = readKeys(parser, keys, command.keys))
        return *error;
    return command;
}

template <class T>
Command parsePlain(const QStringList& arguments) {
    if (auto error = readNoOptions(arguments))
        return *error;
    return T{};
}

template <WindowName window>
Command parseWindow(const QStringList& arguments) {
    if (auto error = readNoOptions(arguments))
        return *error;
    return WindowCommand{window};
}

Command parsePractice(const QStringList& arguments) {
    QCommandLineParser parser;
    const QCommandLineOption app = withValue(u"app"_s);
    if (auto error = readOptions(parser, arguments, {app}))
        return *error;
    WindowCommand command{.window = WindowName::practice};
    if (parser.isSet(app))
        command.appName = parser.value(app).toStdString();
    return command;
}

struct Subcommand {
    const char* name;
    Command (*parse)(const QStringList& arguments);
};

constexpr std::array subcommands{
    Subcommand{"apps", parsePlain<AppsCommand>},
    Subcommand{"sheet", parseSheet},
    Subcommand{"show", parseShow},
    Subcommand{"practice", parsePractice},
    Subcommand{"library", parseWindow<WindowName::library>},
    Subcommand{"settings", parseWindow<WindowName::settings>},
    Subcommand{"welcome", parseWindow<WindowName::welcome>},
    Subcommand{"stats", parseStats},
    Subcommand{"doctor", parsePlain<DoctorCommand>},
    Subcommand{"quit", parsePlain<QuitCommand>},
};

} // namespace

bool takeVerbose(QStringList& arguments) {
    const bool isVerbose = !arguments.isEmpty() && arguments.constFirst() == "--verbose"_L1;
    if (isVerbose)
        arguments.removeFirst();
    return isVerbose;
}

Command parseCommandLine(const QStringList& arguments) {
    if (arguments.isEmpty())
        return RunCommand{};
    if (arguments.contains("--help"_L1) || arguments.contains("-h"_L1))
        return PrintCommand{QCoreApplication::translate("CommandLine", helpText).toStdString()};
    if (arguments.constFirst() == "--version"_L1)
        return PrintCommand{"quillon " QUILLON_VERSION "\n"};
    if (arguments.constFirst() == "--service"_L1)
        return parsePlain<ServeCommand>(arguments.sliced(1));
    for (const Subcommand& subcommand : subcommands)
        if (arguments.constFirst() == QLatin1StringView(subcommand.name))
            return subcommand.parse(arguments.sliced(1));
    return unexpected(
        QCoreApplication::translate("CommandLine", "unknown command '%1'").arg(arguments.constFirst()));
}

} // namespace quillon
