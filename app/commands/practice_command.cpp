#include "commands.h"
#include "learned_file.h"

#include <quillon/app/cli/app_choice.h>
#include <quillon/kit/records/learned_files.h>

#include <QCoreApplication>

#include <vector>

namespace quillon {

std::variant<std::string, ExitCode>
appToPractise(const std::string& name, const std::filesystem::path& dataFolder, Output& output) {
    const std::optional<SheetMap> sheets =
        dataFolder.empty() ? SheetMap() : loadLearned<SheetMap>(dataFolder / LearnedFiles::menus, output);
    if (!sheets)
        return ExitCode::failure;
    std::vector<ListedApp> known;
    for (const auto& [bundleID, sheet] : *sheets)
        known.push_back({.app = {0, bundleID, sheet.appName, {}}, .toolkit = {}});
    if (const auto app = appCalled(name, known))
        return app->bundleID;
    return output.fail(
        ExitCode::noSuchApp,
        TerminalText::sentence(
            QCoreApplication::translate(
                "CommandLine", "the shortcuts of an application called '%1' have not been read yet")
                .arg(QString::fromStdString(name))));
}

} // namespace quillon
