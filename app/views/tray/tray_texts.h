#pragma once

#include <QString>

namespace quillon {

/// The sentences of the tray's menu, whole and ready to be translated.
namespace TrayTexts {

/// What the icon tells when the pointer rests on it.
QString programName();
QString allowAccessibility();
QString showShortcuts();
/// "Show Shortcuts for Sketchpad"
QString showShortcutsFor(const QString& appName);
/// "Or hold ⌘ in any app"
QString holdHint(const QString& trigger);
QString practice();
QString library();
QString settings();
QString checkForUpdates();
QString quit();

} // namespace TrayTexts

} // namespace quillon
