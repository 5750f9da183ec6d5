#include "library_texts.h"

#include <quillon/app/languages/shown_numbers.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace quillon::LibraryTexts {

namespace {

/// How a length of time is told in one unit: up to the next one.
struct AgeUnit {
    double seconds;
    const char* one;
    const char* many;
};

constexpr double minute = 60;
constexpr double hour = 60 * minute;
constexpr double day = 24 * hour;

constexpr std::array<AgeUnit, 7> ageUnits{{
    {365 * day, QT_TRANSLATE_NOOP("Library", "last year"), QT_TRANSLATE_N_NOOP("Library", "%1 years ago")},
    {30 * day, QT_TRANSLATE_NOOP("Library", "last month"), QT_TRANSLATE_N_NOOP("Library", "%1 months ago")},
    {7 * day, QT_TRANSLATE_NOOP("Library", "last week"), QT_TRANSLATE_N_NOOP("Library", "%1 weeks ago")},
    {day, QT_TRANSLATE_NOOP("Library", "yesterday"), QT_TRANSLATE_N_NOOP("Library", "%1 days ago")},
    {hour, QT_TRANSLATE_NOOP("Library", "1 hour ago"), QT_TRANSLATE_N_NOOP("Library", "%1 hours ago")},
    {minute, QT_TRANSLATE_NOOP("Library", "1 minute ago"), QT_TRANSLATE_N_NOOP("Library", "%1 minutes ago")},
    {1, QT_TRANSLATE_NOOP("Library", "1 second ago"), QT_TRANSLATE_N_NOOP("Library", "%1 seconds ago")},
}};

} // namespace

QString searchPrompt() {
    return QCoreApplication::translate("Library", "Search shortcuts");
}

QString appsName() {
    return QCoreApplication::translate("Library", "Apps");
}

QString shortcutsName(const QString& appName) {
    return QCoreApplication::translate("Library", "Shortcuts of %1").arg(appName);
}

QString shortcuts(qint64 count) {
    return QCoreApplication::translate("Library", "%1 shortcuts", nullptr, pluralForm(count)).arg(count);
}

QString ago(Seconds age) {
    const auto unit =
        std::ranges::find_if(ageUnits, [&](const AgeUnit& one) { return age.count() >= one.seconds; });
    if (unit == ageUnits.end())
        return QCoreApplication::translate("Library", "now");
    const auto count = static_cast<qint64>(age.count() / unit->seconds);
    if (count == 1)
        return QCoreApplication::translate("Library", unit->one);
    return QCoreApplication::translate("Library", unit->many, nullptr, pluralForm(count)).arg(count);
}

QString statistics(qint64 count, const QString& ago) {
    return QCoreApplication::translate("Library", "%1 shortcuts · menus read %2", nullptr, pluralForm(count))
        .arg(QString::number(count), ago);
}

QString menuClicks(Count clicks) {
    return QCoreApplication::translate("Library", "%1 menu clicks", nullptr, pluralForm(clicks)).arg(clicks);
}

QString shortcutsTyped(Count typed) {
    return QCoreApplication::translate("Library", "%1 shortcuts typed", nullptr, pluralForm(typed))
        .arg(typed);
}

QString learnNext() {
    return QCoreApplication::translate("Library", "Learn these next");
}

QString counts(Count clicked, Count typed) {
    return QCoreApplication::translate("Library", "%1 clicked · %2 typed")
        .arg(QString::number(clicked), QString::number(typed));
}

QString pinHelp() {
    return QCoreApplication::translate("Library", "Pin to the top of the overlay and cheat sheet");
}

QString unpinHelp() {
    return QCoreApplication::translate("Library", "Unpin");
}

QString noteHelp() {
    return QCoreApplication::translate("Library", "Add a note");
}

QString nudgeHelp() {
    return QCoreApplication::translate("Library", "Nudge me when I click this in the menu");
}

QString pin(const QString& title) {
    return QCoreApplication::translate("Library", "Pin %1").arg(title);
}

QString unpin(const QString& title) {
    return QCoreApplication::translate("Library", "Unpin %1").arg(title);
}

QString noteFor(const QString& title) {
    return QCoreApplication::translate("Library", "Note for %1").arg(title);
}

QString nudgesOff(const QString& title) {
    return QCoreApplication::translate("Library", "Turn nudges off for %1").arg(title);
}

QString nudgesOn(const QString& title) {
    return QCoreApplication::translate("Library", "Turn nudges on for %1").arg(title);
}

QString isPinned() {
    return QCoreApplication::translate("Library", "pinned");
}

QString isMuted() {
    return QCoreApplication::translate("Library", "nudges off");
}

QString notePlaceholder() {
    return QCoreApplication::translate("Library", "A note to remember it by");
}

QString cancel() {
    return QCoreApplication::translate("Library", "Cancel");
}

QString save() {
    return QCoreApplication::translate("Library", "Save");
}

QString practice() {
    return QCoreApplication::translate("Library", "Practice");
}

QString practiceHelp() {
    return QCoreApplication::translate(
        "Library", "Drill this app’s shortcuts, weighted to the ones you click");
}

QString cheatSheet() {
    return QCoreApplication::translate("Library", "Cheat Sheet");
}

QString cheatSheetHelp() {
    return QCoreApplication::translate(
        "Library", "A printable cheat sheet of these shortcuts, pinned first, with your notes");
}

QString saveAsPdf() {
    return QCoreApplication::translate("Library", "Save as PDF…");
}

QString print() {
    return QCoreApplication::translate("Library", "Print…");
}

QString copyAsMarkdown() {
    return QCoreApplication::translate("Library", "Copy as Markdown");
}

QString pdfDocuments(const QString& pattern) {
    return QCoreApplication::translate("Library", "PDF documents (%1)").arg(pattern);
}

QString exportFailed() {
    return QCoreApplication::translate("Library", "Couldn’t make the cheat sheet");
}

QString ok() {
    return QCoreApplication::translate("Library", "OK");
}

QString noAppsTitle() {
    return QCoreApplication::translate("Library", "No apps yet");
}

QString noAppsText(const QString& triggerGlyph) {
    return QCoreApplication::translate("Library", "Hold %1 in any app; its shortcuts show up here.")
        .arg(triggerGlyph);
}

QString pickAnApp() {
    return QCoreApplication::translate("Library", "Pick an app");
}

} // namespace quillon::LibraryTexts
