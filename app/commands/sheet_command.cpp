#include "commands.h"
#include "patient_reading.h"

#include <quillon/app/cli/app_choice.h>
#include <quillon/app/cli/sheet_text.h>
#include <quillon/app/languages/translated_keys.h>
#include <quillon/kit/coach/practice_deck.h>
#include <quillon/kit/coach/seeded_generator.h>
#include <quillon/kit/menu/menu_parser.h>
#include <quillon/kit/menu/shortcut_search.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/records/json_file.h>
#include <quillon/kit/records/learned_files.h>

#include <QCoreApplication>
#include <QRandomGenerator>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

namespace {

std::optional<RunningApp> chosenApp(const SheetCommand& command, ApplicationList& applications) {
    if (!command.appName && !command.pid)
        return applications.front();
    const std::vector<ListedApp> apps = applications.apps();
    return command.pid ? appOfProcess(*command.pid, apps) : appCalled(*command.appName, apps);
}

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

TerminalText missingAppMessage(const SheetCommand& command) {
    if (command.pid)
        return TerminalText::sentence(
            QCoreApplication::translate(
                "CommandLine", "process %1 is no application that shares its menus; see quillon apps")
                .arg(*command.pid));
    if (command.appName)
        return TerminalText::sentence(
            QCoreApplication::translate(
                "CommandLine", "no running application is called '%1'; see quillon apps")
                .arg(text(*command.appName)));
    return TerminalText::sentence(QCoreApplication::translate(
        "CommandLine", "no application is in front; name one with --app, see quillon apps"));
}

QString nameOf(const RunningApp& app) {
    return text(app.name.empty() ? app.bundleID : app.name);
}

QString whyNoShortcuts(ReadOutcome outcome) {
    if (outcome == ReadOutcome::partial)
        return QCoreApplication::translate("CommandLine", "%1 does not answer; try again when it does");
    return QCoreApplication::translate(
        "CommandLine",
        "%1 shares no menu shortcuts; if it was started before accessibility was on, restart it");
}

/// What the sheet lacks; empty when it lacks nothing.
QString whatIsMissing(const AppSheet& sheet, ReadOutcome outcome) {
    if (sheet.entries.empty())
        return whyNoShortcuts(outcome);
    if (outcome == ReadOutcome::partial)
        return QCoreApplication::translate("CommandLine", "%1 stopped answering; the sheet is not complete");
    if (outcome == ReadOutcome::limited)
        return QCoreApplication::translate("CommandLine", "%1 has more menu items than are read");
    return {};
}

/// What the user has done and said of the applications so far.
struct Records {
    UsageBook usage;
    AnnotationBook annotations;

    /// Nothing where there is no folder, or no file in it that can be read.
    static Records load(const std::filesystem::path& folder) {
        if (folder.empty())
            return {};
        return {
            JSONFile<UsageBook>(folder / LearnedFiles::usage).load().value_or(UsageBook{}),
            JSONFile<AnnotationBook>(folder / LearnedFiles::notes).load().value_or(AnnotationBook{})};
    }
};

std::vector<MenuEntry>
practiceRound(const AppSheet& sheet, const PracticeRequest& request, const Records& records) {
    const std::uint64_t anySeed = QRandomGenerator::system()->generate64();
    SeededGenerator generator(request.seed.value_or(anySeed));
    return PracticeDeck::round(
        sheet.entries, records.usage.records(sheet.bundleID), records.annotations.pinned(sheet.bundleID),
        request.count, generator);
}

/// Writes the sheet as a document: to the file that was asked for, or as the result. One without pages is
/// nobody's wish: the user was told that nothing matches.
ExitCode writeDocument(
    const CheatSheetSource& source, const SheetCommand& command, CheatSheetExports& exports, Output& output) {
    if (source.sheet.entries.empty())
        return ExitCode::failure;
    const Outcome<std::string, ExportFailure> document = exports.pdf(source);
    if (const ExportFailure* failure = document.failure())
        return output.fail(ExitCode::failure, TerminalText::of(failure->text));
    if (!command.output) {
        output.printData(*document);
        return ExitCode::success;
    }
    if (const std::optional<ExportFailure> failure = exports.save(*document, *command.output))
        return output.fail(ExitCode::failure, TerminalText::of(failure->text));
    return ExitCode::success;
}

ExitCode print(
    const AppSheet& sheet, const SheetCommand& command, const Records& records, CheatSheetExports& exports,
    Output& output) {
    const std::optional<KeyNames> names = shownNames(command.keys);
    const KeyNames* const shown = names ? &*names : nullptr;
    const Annotations& annotations = records.annotations.annotations(sheet.bundleID);
    switch (command.format) {
    case SheetFormat::pdf: return writeDocument({sheet, annotations, shown}, command, exports, output);
    case SheetFormat::json: output.printJson(Json::encode(sheet)); break;
    case SheetFormat::markdown: output.print(markdownText(sheet, annotations, shown)); break;
    case SheetFormat::text:
        output.print(command.practice ? practiceText(sheet.entries, shown) : sheetText(sheet, shown));
        break;
    }
    return ExitCode::success;
}

/// The whole sheet of `app`. Says what it lacks; without entries there is none to print.
AppSheet readSheet(const RunningApp& app, MenuReader& menuReader, const Clock& clock, Output& output) {
    const MenuReading reading = readPatiently(app, menuReader);
    AppSheet sheet{
        app.bundleID, app.name, MenuParser::entries(reading.menuBar, MenuParser::defaultMaxDepth),
        clock.now()};
    if (const QString missing = whatIsMissing(sheet, reading.outcome); !missing.isEmpty())
        output.say(TerminalText::sentence(missing.arg(nameOf(app))));
    return sheet;
}

} // namespace

ExitCode runSheet(
    const SheetCommand& command, const SheetServices& services, const std::filesystem::path& dataFolder,
    Output& output) {
    if (command.format == SheetFormat::pdf && !command.output && output.isTerminal())
        return output.fail(
            ExitCode::usage, TerminalText::sentence(QCoreApplication::translate(
                                 "CommandLine", "a PDF document is not for the terminal; name a file with "
                                                "--output")));
    if (const auto obstacle = services.applications.obstacle())
        return output.fail(ExitCode::noAccessibility, TerminalText::of(*obstacle));
    const std::optional<RunningApp> app = chosenApp(command, services.applications);
    if (!app)
        return output.fail(ExitCode::noSuchApp, missingAppMessage(command));
    AppSheet sheet = readSheet(*app, services.menuReader, services.clock, output);
    if (sheet.entries.empty())
        return ExitCode::noShortcuts;

    const Records records = Records::load(dataFolder);
    sheet.entries = ShortcutSearch::filter(
        sheet.entries, command.query, records.annotations.notes(sheet.bundleID), translatedKeyWords());
    if (sheet.entries.empty())
        output.say(TerminalText::sentence(
            QCoreApplication::translate("CommandLine", "no shortcut of %1 matches '%2'")
                .arg(nameOf(*app), text(command.query))));
    if (command.practice)
        sheet.entries = practiceRound(sheet, *command.practice, records);
    return print(sheet, command, records, services.exports, output);
}

} // namespace quillon
