#include "app_list.h"
#include "commands.h"

#include <quillon/atspi/accessibility_bus.h>
#include <quillon/atspi/menu_reader.h>
#include <quillon/cli/app_choice.h>
#include <quillon/cli/sheet_text.h>
#include <quillon/menu/menu_parser.h>
#include <quillon/menu/shortcut_search.h>
#include <quillon/qt/system_clock.h>
#include <quillon/records/json_codec.h>

#include <cstdio>
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

void print(const AppSheet& sheet, SheetFormat format) {
    if (format == SheetFormat::json)
        std::cout << Json::encode(sheet).value_or("") << '\n';
    else
        std::cout << sheetText(sheet);
    std::cout.flush();
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
        return fail(
            ExitCode::noShortcuts, nameOf(*app)
                                       + " shares no menu shortcuts; if it was started before accessibility "
                                         "was on, restart it");
    if (reading.outcome == ReadOutcome::partial)
        std::cerr << "quillon: " << nameOf(*app) << " stopped answering; the sheet is not complete\n";
    sheet.entries = ShortcutSearch::filter(sheet.entries, command.query, {});
    print(sheet, command.format);
    return ExitCode::success;
}

} // namespace quillon
