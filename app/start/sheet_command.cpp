#include "app_list.h"
#include "commands.h"

#include <quillon/app/cli/app_choice.h>
#include <quillon/app/cli/sheet_text.h>
#include <quillon/app/platform/linux/atspi/accessibility_bus.h>
#include <quillon/app/platform/linux/atspi/menu_reader.h>
#include <quillon/app/platform/linux/session/paths.h>
#include <quillon/app/platform/qt/system_clock.h>
#include <quillon/kit/cheatsheet/cheat_sheet.h>
#include <quillon/kit/coach/practice_deck.h>
#include <quillon/kit/coach/seeded_generator.h>
#include <quillon/kit/menu/menu_parser.h>
#include <quillon/kit/menu/shortcut_search.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/records/json_file.h>

#include <QRandomGenerator>

#include <iostream>
#include <string>

namespace quillon {

namespace {

ExitCode fail(ExitCode code, const std::string& message) {
    std::cerr << "quillon: " << message << '\n';
    return code;
}

/// Why menus cannot be read at all; absent when they can.
std::optional<std::string> accessibilityProblem() {
    const atspi::AccessibilityBusState state = atspi::probeAccessibilityBus();
    if (!state.hasSessionBus)
        return "there is no session bus; run this inside of a desktop session";
    if (!state.hasAccessibilityBus)
        return "the accessibility bus cannot be reached; install at-spi2-core and log in again";
    if (state.isEnabled && !*state.isEnabled)
        return "accessibility is off; choose “Allow Accessibility…” in Quillon’s menu";
    return std::nullopt;
}

std::optional<RunningApp> chosenApp(const SheetCommand& command) {
    if (!command.appName && !command.pid)
        return frontApp();
    std::vector<RunningApp> apps;
    for (ListedApp& listed : listApps().value_or(std::vector<ListedApp>{}))
        apps.push_back(std::move(listed.app));
    return command.pid ? appOfProcess(*command.pid, apps) : appCalled(*command.appName, apps);
}

std::string missingAppMessage(const SheetCommand& command) {
    if (command.pid)
        return "process " + std::to_string(*command.pid)
               + " is no application that shares its menus; see quillon apps";
    if (command.appName)
        return "no running application is called '" + *command.appName + "'; see quillon apps";
    return "no application is in front; name one with --app, see quillon apps";
}

std::string nameOf(const RunningApp& app) {
    return app.name.empty() ? app.bundleID : app.name;
}

std::string whyNoShortcuts(const RunningApp& app, ReadOutcome outcome) {
    if (outcome == ReadOutcome::partial)
        return nameOf(app) + " does not answer; try again when it does";
    return nameOf(app)
           + " shares no menu shortcuts; if it was started before accessibility was on, restart it";
}

/// What the user has done and said of the applications so far.
struct Records {
    UsageBook usage = JSONFile<UsageBook>(dataFolder() / "usage.json").load().value_or(UsageBook{});
    AnnotationBook annotations =
        JSONFile<AnnotationBook>(dataFolder() / "notes.json").load().value_or(AnnotationBook{});
};

std::vector<MenuEntry>
practiceRound(const AppSheet& sheet, const PracticeRequest& request, const Records& records) {
    const std::uint64_t anySeed = QRandomGenerator::system()->generate64();
    SeededGenerator generator(request.seed.value_or(anySeed));
    return PracticeDeck::round(
        sheet.entries, records.usage.records(sheet.bundleID), records.annotations.pinned(sheet.bundleID),
        request.count, generator);
}

Annotations annotationsOf(const std::string& bundleID, const Records& records) {
    const auto found = records.annotations.apps.find(bundleID);
    return found == records.annotations.apps.end() ? Annotations{} : found->second;
}

std::string textOf(const AppSheet& sheet, const SheetCommand& command, const Records& records) {
    switch (command.format) {
    case SheetFormat::json: return Json::encode(sheet).value_or("") + '\n';
    case SheetFormat::markdown: return CheatSheet::markdown(sheet, annotationsOf(sheet.bundleID, records));
    case SheetFormat::text: break;
    }
    return command.practice ? practiceText(sheet.entries) : sheetText(sheet);
}

} // namespace

ExitCode runSheet(const SheetCommand& command) {
    if (const auto problem = accessibilityProblem())
        return fail(ExitCode::noAccessibility, *problem);
    const std::optional<RunningApp> app = chosenApp(command);
    if (!app)
        return fail(ExitCode::noSuchApp, missingAppMessage(command));

    const MenuReading reading = AtspiMenuReader().readMenus(*app, {});
    AppSheet sheet{
        app->bundleID, app->name, MenuParser::entries(reading.menuBar, MenuParser::defaultMaxDepth),
        SystemClock().now()};
    if (sheet.entries.empty())
        return fail(ExitCode::noShortcuts, whyNoShortcuts(*app, reading.outcome));
    if (reading.outcome == ReadOutcome::partial)
        std::cerr << "quillon: " << nameOf(*app) << " stopped answering; the sheet is not complete\n";
    if (reading.outcome == ReadOutcome::limited)
        std::cerr << "quillon: " << nameOf(*app) << " has more menu items than are read\n";
    const Records records;
    sheet.entries =
        ShortcutSearch::filter(sheet.entries, command.query, records.annotations.notes(sheet.bundleID));
    if (command.practice)
        sheet.entries = practiceRound(sheet, *command.practice, records);
    std::cout << textOf(sheet, command, records) << std::flush;
    return ExitCode::success;
}

} // namespace quillon
