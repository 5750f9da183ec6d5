#include "commands.h"
#include "patient_reading.h"

#include <quillon/app/cli/sheet_text.h>

#include <cstddef>
#include <future>
#include <string>
#include <utility>
#include <vector>

namespace quillon {

namespace {

/// Asks every application at once, so that those that do not answer cost their time together.
std::vector<ListedApp> withMenus(std::vector<ListedApp> apps, MenuReader& reader) {
    std::vector<std::future<bool>> answers;
    answers.reserve(apps.size());
    for (const ListedApp& listed : apps)
        answers.push_back(std::async(std::launch::async, [&reader, &app = listed.app] {
            return !readPatiently(app, reader).menuBar.empty();
        }));
    std::vector<ListedApp> sharing;
    for (std::size_t i = 0; i < apps.size(); ++i)
        if (answers[i].get())
            sharing.push_back(std::move(apps[i]));
    return sharing;
}

/// A column is never empty but at the end of a line: whoever cuts the lines up again counts on it.
TerminalText cell(const std::string& text) {
    return text.empty() ? TerminalText("-") : TerminalText::of(text);
}

} // namespace

ExitCode runApps(ApplicationList& applications, MenuReader& menuReader, Output& output) {
    if (const auto obstacle = applications.obstacle())
        return output.fail(ExitCode::noAccessibility, TerminalText::of(*obstacle));
    std::vector<std::vector<TerminalText>> rows;
    for (const ListedApp& listed : withMenus(applications.apps(), menuReader))
        rows.push_back(
            {cell(std::to_string(listed.app.pid)), cell(listed.app.bundleID), cell(listed.app.name),
             TerminalText::of(listed.toolkit)});
    output.print(tableText(rows));
    return ExitCode::success;
}

} // namespace quillon
