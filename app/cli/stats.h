#pragma once

#include "terminal_text.h"

#include <quillon/kit/base/checked.h>
#include <quillon/kit/records/stored_forms.h>
#include <quillon/kit/records/usage.h>
#include <quillon/kit/shortcut/key_names.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// One command that was used, and how often.
struct CommandStats {
    std::string id;                   ///< the titles from the menu to the command, joined
    std::optional<Shortcut> shortcut; ///< absent for a command that is in no sheet any more
    Count clicked = 0;
    Count typed = 0;
    bool graduated = false; ///< typed so much more than clicked that it is not nudged any more

    bool operator==(const CommandStats&) const = default;
};

/// What was counted of one application.
struct AppStats {
    std::string bundleID;
    std::string appName; ///< "" when no sheet tells it
    Count clicked = 0;   ///< all commands together
    Count typed = 0;
    /// The clicks that typing replaced: the typed uses of commands that were clicked as well. Where a command
    /// was never clicked there was no click to replace.
    Count replaced = 0;
    /// Those that were clicked, in the order of `UsageBook::mostClicked`; then those that were only typed,
    /// the most typed first. Those that were only practiced are not among them.
    std::vector<CommandStats> commands;

    bool operator==(const AppStats&) const = default;
};

/// What was counted, in the order of the bundle identifiers; applications of which nothing was counted are
/// left out. A command has graduated when typing leads clicking by `graduateAfter` or more.
std::vector<AppStats> statsOf(const UsageBook& usage, const SheetMap& sheets, Count graduateAfter);

/// Those of the application that is called so, by the rules of `appCalled`; empty when there is none.
std::vector<AppStats> statsOfApp(const std::vector<AppStats>& all, std::string_view name);

/// A table of commands for each application, below what was counted of it altogether. Keys are shown by
/// `names`; with null, by symbols.
TerminalText statsText(const std::vector<AppStats>& stats, const KeyNames* names = nullptr);

/// The same for programs: an array of applications in JSON. Absent when a name is not UTF-8.
std::optional<std::string> statsJson(const std::vector<AppStats>& stats);

} // namespace quillon
