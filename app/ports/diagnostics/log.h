#pragma once

#include <QLoggingCategory>

/// The program's doings, for whoever looks for a fault. Silent, but for warnings, until switched on by Qt's
/// rules (QT_LOGGING_RULES="quillon.menus=true") or `quillon --verbose`. They name applications by name,
/// identifier and process, windows by number, times and outcomes; never a key, a title or anything that was
/// typed.
namespace quillon {

Q_DECLARE_LOGGING_CATEGORY(logMenus)   ///< quillon.menus: readings of menus
Q_DECLARE_LOGGING_CATEGORY(logWindows) ///< quillon.windows: which application is in front
Q_DECLARE_LOGGING_CATEGORY(logInput)   ///< quillon.input: whether held keys are noticed, and how
Q_DECLARE_LOGGING_CATEGORY(logPanels)  ///< quillon.panels: panels that open and close
Q_DECLARE_LOGGING_CATEGORY(logUpdates) ///< quillon.updates: checks for updates

/// Switches all of them on. Qt's own rules, where the environment has any, still come after.
void logEverything();

} // namespace quillon
