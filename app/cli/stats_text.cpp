#include "stats.h"

#include "sheet_text.h"

#include <quillon/kit/records/json_codec.h>

#include <QCoreApplication>

#include <string>
#include <tuple>

/// How `quillon stats --format json` writes them.
namespace quillon::Json {

template <>
struct Form<CommandStats> {
    static constexpr auto members = std::tuple(
        member("clicked", &CommandStats::clicked), member("graduated", &CommandStats::graduated),
        member("id", &CommandStats::id), member("shortcut", &CommandStats::shortcut),
        member("typed", &CommandStats::typed));
};

template <>
struct Form<AppStats> {
    static constexpr auto members = std::tuple(
        member("appName", &AppStats::appName), member("bundleID", &AppStats::bundleID),
        member("clicked", &AppStats::clicked), member("commands", &AppStats::commands),
        member("replaced", &AppStats::replaced), member("typed", &AppStats::typed));
};

} // namespace quillon::Json

namespace quillon {

namespace {

/// A pattern with one number in it.
TerminalText counted(const char* pattern, Count count) {
    return TerminalText::sentence(QCoreApplication::translate("CommandLine", pattern).arg(count));
}

TerminalText headline(const AppStats& stats) {
    const bool isNamed = !stats.appName.empty();
    const QString counts =
        QCoreApplication::translate("CommandLine", "clicked %1, typed %2, clicks replaced by typing %3")
            .arg(stats.clicked)
            .arg(stats.typed)
            .arg(stats.replaced);
    return TerminalText::of(isNamed ? stats.appName : stats.bundleID)
           + (isNamed ? " (" + TerminalText::of(stats.bundleID) + ")" : TerminalText()) + ": "
           + TerminalText::sentence(counts) + "\n";
}

std::vector<TerminalText> rowOf(const CommandStats& command, const KeyNames* names) {
    const QString learned =
        command.graduated ? QCoreApplication::translate("CommandLine", "learned") : QString();
    return {
        "  " + TerminalText::of(command.id),
        command.shortcut ? TerminalText::of(displayWith(*command.shortcut, names)) : TerminalText("-"),
        counted(QT_TRANSLATE_NOOP("CommandLine", "clicked %1"), command.clicked),
        counted(QT_TRANSLATE_NOOP("CommandLine", "typed %1"), command.typed),
        TerminalText::sentence(learned)};
}

} // namespace

TerminalText statsText(const std::vector<AppStats>& stats, const KeyNames* names) {
    TerminalText text;
    for (const AppStats& app : stats) {
        std::vector<std::vector<TerminalText>> rows;
        for (const CommandStats& command : app.commands)
            rows.push_back(rowOf(command, names));
        text += (text.isEmpty() ? TerminalText() : TerminalText("\n")) + headline(app) + tableText(rows);
    }
    return text;
}

std::optional<std::string> statsJson(const std::vector<AppStats>& stats) {
    return Json::encode(stats);
}

} // namespace quillon
