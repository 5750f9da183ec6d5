#include "app_list.h"
#include "commands.h"

#include <quillon/app/cli/sheet_text.h>
#include <quillon/app/platform/linux/atspi/menu_reader.h>

#include <future>
#include <iostream>

namespace quillon {

namespace {

/// Asks every application at once, so that those that do not answer cost their time together.
std::vector<ListedApp> withMenus(std::vector<ListedApp> apps) {
    AtspiMenuReader reader;
    std::vector<std::future<bool>> answers;
    answers.reserve(apps.size());
    for (const ListedApp& listed : apps)
        answers.push_back(std::async(std::launch::async, [&reader, &app = listed.app] {
            return !reader.readMenus(app, {}).menuBar.empty();
        }));
    std::vector<ListedApp> sharing;
    for (std::size_t i = 0; i < apps.size(); ++i)
        if (answers[i].get())
            sharing.push_back(std::move(apps[i]));
    return sharing;
}

} // namespace

ExitCode runApps(const AppsCommand&) {
    auto apps = listApps();
    if (!apps) {
        std::cerr << "quillon: the accessibility bus cannot be reached; see quillon doctor\n";
        return ExitCode::noAccessibility;
    }
    std::vector<std::vector<std::string>> rows;
    for (const ListedApp& listed : withMenus(*std::move(apps)))
        rows.push_back(
            {std::to_string(listed.app.pid), listed.app.bundleID, listed.app.name, listed.toolkit});
    std::cout << tableText(rows);
    return ExitCode::success;
}

} // namespace quillon
