#include "settings_texts.h"

#include <quillon/app/languages/shown_numbers.h>
#include <quillon/kit/coach/nudge_policy.h>

#include <QCoreApplication>

namespace quillon::SettingsTexts {

QString tab(SettingsTab tab) {
    switch (tab) {
    case SettingsTab::general: return QCoreApplication::translate("Settings", "General");
    case SettingsTab::coach: return QCoreApplication::translate("Settings", "Coach");
    case SettingsTab::privacy: return QCoreApplication::translate("Settings", "Privacy");
    }
    Q_UNREACHABLE();
}

QString holdThisKey() {
    return QCoreApplication::translate("Settings", "Hold this key");
}

QString name(TriggerKey key) {
    switch (key) {
    case TriggerKey::command: return QCoreApplication::translate("Settings", "Command");
    case TriggerKey::option: return QCoreApplication::translate("Settings", "Option");
    case TriggerKey::control: return QCoreApplication::translate("Settings", "Control");
    }
    Q_UNREACHABLE();
}

QString usingTheKey(const QString& key) {
    return QCoreApplication::translate(
               "Settings", "Using the key in a shortcut (%1-click) never opens the overlay.")
        .arg(key);
}

QString opensLauncher(const QString& key) {
    return QCoreApplication::translate(
               "Settings", "Your desktop opens its launcher when %1 is pressed alone, so holding it may do "
                           "both.")
        .arg(key);
}

QString useInstead(const QString& key) {
    return QCoreApplication::translate("Settings", "Use %1 Instead").arg(key);
}

QString holdTime() {
    return QCoreApplication::translate("Settings", "Hold time");
}

QString seconds(double number) {
    return QCoreApplication::translate("Settings", "%1 s").arg(withOneDecimal(number));
}

QString showKeysAs() {
    return QCoreApplication::translate("Settings", "Show keys as");
}

QString name(KeyLabels labels) {
    switch (labels) {
    case KeyLabels::symbols: return QCoreApplication::translate("Settings", "Symbols");
    case KeyLabels::names: return QCoreApplication::translate("Settings", "Names");
    }
    Q_UNREACHABLE();
}

QString startWithSession() {
    return QCoreApplication::translate("Settings", "Start with the session");
}

QString startNotChanged() {
    return QCoreApplication::translate(
        "Settings", "The start with the session could not be changed: your configuration folder cannot be "
                    "written to. Allow that, then try again.");
}

QString accessibility() {
    return QCoreApplication::translate("Settings", "Accessibility");
}

QString allowed() {
    return QCoreApplication::translate("Settings", "Allowed");
}

QString allow() {
    return QCoreApplication::translate("Settings", "Allow…");
}

QString nudgeMe() {
    return QCoreApplication::translate(
        "Settings", "Nudge me when I click a menu command that has a shortcut");
}

QString countTyped() {
    return QCoreApplication::translate(
        "Settings", "Count the shortcuts I type (to know which ones I already use)");
}

QString counting(const QString& command, const QString& control) {
    const auto lead = static_cast<int>(defaultNudgePolicy.graduateAfter);
    return QCoreApplication::translate(
               "Settings",
               "Counting looks only at key presses with %1 or %2 and compares them with the front app’s menu "
               "shortcuts. Quillon never records what you type. A shortcut stops being nudged once you’ve "
               "typed it %3 times more than you’ve clicked it; you can also mute any one in the Library.",
               nullptr, lead)
        .arg(command, control, QString::number(lead));
}

QString whatIsKept(const Vocabulary& vocabulary, const QString& dataFolder) {
    if (dataFolder.isEmpty())
        return QCoreApplication::translate(
                   "Settings",
                   "Everything Quillon learns stays on this %1: the menus it has read, how often you click "
                   "or "
                   "type each shortcut, your practice results, pins and notes. There is no folder for it, so "
                   "it is forgotten when Quillon quits.")
            .arg(vocabulary.computer);
    return QCoreApplication::translate(
               "Settings",
               "Everything Quillon learns stays on this %1: the menus it has read, how often you click or "
               "type each shortcut, your practice results, pins and notes. They’re plain files in %2.")
        .arg(vocabulary.computer, dataFolder);
}

QString goesOnline() {
    return QCoreApplication::translate("Settings", "Quillon goes online only to look for updates.");
}

QString eraseEverything() {
    return QCoreApplication::translate("Settings", "Erase Stats, Pins and Notes…");
}

ConfirmationWords eraseConfirmation() {
    return {
        .title = QCoreApplication::translate("Settings", "Erase everything Quillon has learned?"),
        .message = QCoreApplication::translate(
            "Settings", "Your counts, practice results, pins, notes and the menus read so far are deleted. "
                        "Your settings stay."),
        .destroy = QCoreApplication::translate("Settings", "Erase"),
        .cancel = QCoreApplication::translate("Settings", "Cancel"),
    };
}

} // namespace quillon::SettingsTexts
