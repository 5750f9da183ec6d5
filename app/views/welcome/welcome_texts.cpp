#include "welcome_texts.h"

#include <QCoreApplication>
#include <QLocale>

namespace quillon::WelcomeTexts {

namespace {

QString nameOf(TriggerKey key) {
    switch (key) {
    case TriggerKey::command: return QCoreApplication::translate("Welcome", "Command");
    case TriggerKey::option: return QCoreApplication::translate("Welcome", "Option");
    case TriggerKey::control: return QCoreApplication::translate("Welcome", "Control");
    }
    return {};
}

} // namespace

QString title() {
    return QCoreApplication::translate("Welcome", "Welcome to Quillon");
}

QString promise() {
    return QCoreApplication::translate("Welcome", "Learn the shortcuts of the apps you already use.");
}

QString allowTitle() {
    return QCoreApplication::translate("Welcome", "Allow Accessibility");
}

QString allowBody(const Vocabulary& vocabulary) {
    return QCoreApplication::translate(
               "Welcome",
               "Quillon reads the front app’s menus to find their shortcuts. %1 asks you to allow this once "
               "in %2. Turn on %3 there; this window notices by itself.")
        .arg(vocabulary.accessibilityAsker, vocabulary.accessibilityPlace, vocabulary.accessibilitySwitch);
}

QString allowAccessibility() {
    return QCoreApplication::translate("Welcome", "Allow Accessibility…");
}

QString openSystemSettings() {
    return QCoreApplication::translate("Welcome", "Open System Settings");
}

QString allowed() {
    return QCoreApplication::translate("Welcome", "Allowed");
}

QString holdTitle(const QString& trigger) {
    return QCoreApplication::translate("Welcome", "Hold %1 in any app").arg(trigger);
}

QString holdBody(TriggerKey key, const QString& trigger) {
    return QCoreApplication::translate(
               "Welcome",
               "Keep the %1 key (%2) down for a moment and that app’s shortcuts appear, grouped by menu. Let "
               "go to close it, or click it to keep it open and search. No other permission is needed for "
               "this.")
        .arg(nameOf(key), trigger);
}

QString opensLauncher(const QString& trigger) {
    return QCoreApplication::translate(
               "Welcome",
               "Your desktop opens its launcher when %1 is pressed alone, so holding it may do both.")
        .arg(trigger);
}

QString useInstead(const QString& other) {
    return QCoreApplication::translate("Welcome", "Use %1 Instead").arg(other);
}

QString restart(const QStringList& apps) {
    return QCoreApplication::translate(
               "Welcome", "To show the shortcuts of what was open before, quit it and start it again: %1")
        .arg(QLocale().createSeparatedList(apps));
}

QString withoutTray() {
    return QCoreApplication::translate(
        "Welcome",
        "This desktop shows no tray icons. To reach Quillon, start it again from your list of apps: that "
        "opens "
        "its menu, and a right click there offers its windows. In a terminal, “quillon show” opens the "
        "overlay and “quillon --help” names the rest.");
}

QString privacyTitle(const Vocabulary& vocabulary) {
    return QCoreApplication::translate("Welcome", "Nothing leaves your %1").arg(vocabulary.computer);
}

QString privacyBody(const Vocabulary& vocabulary) {
    return QCoreApplication::translate(
               "Welcome", "Menus, counts, pins and notes stay in your %1. Quillon only notices shortcuts and "
                          "menu clicks "
                          "(never what you type) and goes online only to look for updates.")
        .arg(vocabulary.dataPlace);
}

QString step(int number) {
    return QCoreApplication::translate("Welcome", "Step %1").arg(number);
}

QString stepDone(int number) {
    return QCoreApplication::translate("Welcome", "Step %1, done").arg(number);
}

QString later() {
    return QCoreApplication::translate("Welcome", "Later");
}

QString done() {
    return QCoreApplication::translate("Welcome", "Done");
}

} // namespace quillon::WelcomeTexts
