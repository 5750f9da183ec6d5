#pragma once

#include <quillon/app/core/trigger_key.h>
#include <quillon/app/ports/tray.h>
#include <quillon/kit/shortcut/key_labels.h>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// The lines of the tray's menu, from top to bottom. Their numbers are the lines' ids.
enum class TrayLine {
    allowAccessibility = 1,
    separatorBelowAllow,
    showShortcuts,
    holdHint,
    separatorBelowShortcuts,
    practice,
    library,
    separatorBelowWindows,
    settings,
    checkForUpdates,
    quit,
};

/// What the menu depends on.
struct TrayFacts {
    bool trusted = false;               ///< other applications' menus may be read
    std::optional<std::string> appName; ///< of the current application; absent without one
    TriggerKey trigger = TriggerKey::command;
    KeyLabels keyLabels = KeyLabels::symbols;
};

/// The menu as it reads for these facts.
std::vector<TrayMenuItem> trayLines(const TrayFacts& facts);

} // namespace quillon
