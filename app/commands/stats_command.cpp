#include "commands.h"
#include "learned_file.h"

#include <quillon/app/cli/stats.h>
#include <quillon/app/languages/translated_keys.h>
#include <quillon/kit/coach/nudge_policy.h>
#include <quillon/kit/records/learned_files.h>

#include <QCoreApplication>

#include <vector>

namespace quillon {

ExitCode runStats(const StatsCommand& command, const std::filesystem::path& dataFolder, Output& output) {
    if (dataFolder.empty())
        return output.fail(
            ExitCode::failure,
            TerminalText::sentence(QCoreApplication::translate(
                "CommandLine", "there is no home folder that could hold anything; set HOME")));
    const auto usage = loadLearned<UsageBook>(dataFolder / LearnedFiles::usage, output);
    if (!usage)
        return ExitCode::failure;
    const auto sheets = loadLearned<SheetMap>(dataFolder / LearnedFiles::menus, output);

    std::vector<AppStats> stats =
        statsOf(*usage, sheets.value_or(SheetMap{}), defaultNudgePolicy.graduateAfter);
    if (command.appName) {
        stats = statsOfApp(stats, *command.appName);
        if (stats.empty())
            return output.fail(
                ExitCode::noSuchApp,
                TerminalText::sentence(QCoreApplication::translate(
                                           "CommandLine", "nothing was counted of an application called '%1'")
                                           .arg(QString::fromStdString(*command.appName))));
    }
    if (stats.empty())
        output.say(
            TerminalText::sentence(QCoreApplication::translate("CommandLine", "nothing was counted yet")));
    const std::optional<KeyNames> names = shownNames(command.keys);
    if (command.format == StatsFormat::json)
        output.printJson(statsJson(stats));
    else
        output.print(statsText(stats, names ? &*names : nullptr));
    return sheets ? ExitCode::success : ExitCode::failure;
}

} // namespace quillon
