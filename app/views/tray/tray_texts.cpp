#include "tray_texts.h"

#include <QCoreApplication>

namespace quillon::TrayTexts {

QString programName() {
    return QCoreApplication::translate("Tray", "Quillon");
}

QString allowAccessibility() {
    return QCoreApplication::translate("Tray", "Allow Accessibility…");
}

QString showShortcuts() {
    return QCoreApplication::translate("Tray", "Show Shortcuts");
}

QString showShortcutsFor(const QString& appName) {
    return QCoreApplication::translate("Tray", "Show Shortcuts for %1").arg(appName);
}

QString holdHint(const QString& trigger) {
    return QCoreApplication::translate("Tray", "Or hold %1 in any app").arg(trigger);
}

QString practice() {
    return QCoreApplication::translate("Tray", "Practice");
}

QString library() {
    return QCoreApplication::translate("Tray", "Library…");
}

QString settings() {
    return QCoreApplication::translate("Tray", "Settings");
}

QString checkForUpdates() {
    return QCoreApplication::translate("Tray", "Check for Updates…");
}

QString quit() {
    return QCoreApplication::translate("Tray", "Quit Quillon");
}

} // namespace quillon::TrayTexts
