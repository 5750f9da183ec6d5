#include "stats.h"

#include "sheet_text.h"

#include <quillon/kit/records/json_codec.h>

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

TerminalText number(Count count) {
    return TerminalText::of(std::to_string(count));
}

TerminalText headline(const AppStats& stats) {
    const bool isNamed = !stats.appName.empty();
    return TerminalText::of(isNamed ? stats.appName : stats.bundleID)
           + (isNamed ? " (" + TerminalText::of(stats.bundleID) + ")" : TerminalText()) + ": clicked "
           + number(stats.clicked) + ", typed " + number(stats.typed) + ", clicks replaced by typing "
           + number(stats.replaced) + "\n";
}

std::vector<TerminalText> rowOf(const CommandStats& command) {
    return {
        "  " + TerminalText::of(command.id),
        command.shortcut ? TerminalText::of(command.shortcut->display()) : TerminalText("-"),
        "clicked " + number(command.clicked), "typed " + number(command.typed),
        command.graduated ? TerminalText("learned") : TerminalText()};
}

} // namespace

TerminalText statsText(const std::vector<AppStats>& stats) {
    TerminalText text;
    for (const AppStats& app : stats) {
        std::vector<std::vector<TerminalText>> rows;
        for (const CommandStats& command : app.commands)
            rows.push_back(rowOf(command));
        text += (text.isEmpty() ? TerminalText() : TerminalText("\n")) + headline(app) + tableText(rows);
    }
    return text;
}

std::optional<std::string> statsJson(const std::vector<AppStats>& stats) {
    return Json::encode(stats);
}

} // namespace quillon
