#include "overlay_texts.h"

#include <quillon/app/languages/shown_numbers.h>

#include <QCoreApplication>

namespace quillon::OverlayTexts {

namespace {

/// For the choice of a plural form.
int formOf(std::size_t count) {
    return pluralForm(static_cast<qint64>(count));
}

MessageWords needsAccessibility(const Vocabulary& vocabulary) {
    return {
        .symbol = Symbol::handRaised,
        .title = QCoreApplication::translate("Overlay", "Quillon needs Accessibility to read menus"),
        .body = QCoreApplication::translate("Overlay", "Allow it once in %1. Nothing leaves your %2.")
                    .arg(vocabulary.accessibilitySettings, vocabulary.computer),
        .action = QCoreApplication::translate("Overlay", "Show Me How"),
    };
}

MessageWords noSheet(const QString& trigger) {
    return {
        .symbol = Symbol::keyboard,
        .title = QCoreApplication::translate("Overlay", "Switch to an app, then hold %1").arg(trigger),
        .body = {},
        .action = {},
    };
}

MessageWords reading(const QString& appName) {
    return {
        .symbol = Symbol::hourglass,
        .title = QCoreApplication::translate("Overlay", "Reading %1’s menus…").arg(appName),
        .body = {},
        .action = {},
    };
}

MessageWords noShortcuts(const QString& appName, const Vocabulary& vocabulary) {
    return {
        .symbol = Symbol::menuBarRectangle,
        .title = QCoreApplication::translate("Overlay", "No menu shortcuts in %1").arg(appName),
        .body =
            QCoreApplication::translate("Overlay", "Some apps draw their own menus, which %1 doesn’t share.")
                .arg(vocabulary.system),
        .action = {},
    };
}

} // namespace

MessageWords
message(OverlayState state, const QString& appName, const QString& trigger, const Vocabulary& vocabulary) {
    switch (state) {
    case OverlayState::needsAccessibility: return needsAccessibility(vocabulary);
    case OverlayState::noSheet: return noSheet(trigger);
    case OverlayState::reading: return reading(appName);
    case OverlayState::noShortcuts: return noShortcuts(appName, vocabulary);
    case OverlayState::noAnswer: {
        MessageWords message = noShortcuts(appName, vocabulary);
        message.body +=
            u'\n' + QCoreApplication::translate("Overlay", "%1 does not answer now.").arg(appName);
        return message;
    }
    case OverlayState::shortcuts: break;
    }
    return {};
}

MessageWords nothingMatches(const QString& query) {
    const QString pattern = QCoreApplication::translate("Overlay", "Nothing matches “%1”");
    return {
        .symbol = std::nullopt,
        .title = pattern.arg(query),
        .body = {},
        .action = {},
        .shortened = {pattern.indexOf(QLatin1StringView("%1")), query.size()},
    };
}

QString allShortcuts(std::size_t count) {
    return QCoreApplication::translate("Overlay", "%1 shortcuts from its menus", nullptr, formOf(count))
        .arg(count);
}

QString someShortcuts(std::size_t found, std::size_t count) {
    return QCoreApplication::translate("Overlay", "%1 of %2 shortcuts", nullptr, formOf(count))
        .arg(found)
        .arg(count);
}

QString searchPrompt() {
    return QCoreApplication::translate("Overlay", "Search shortcuts");
}

QString closingHint(bool sticky, const QString& trigger) {
    if (sticky)
        return QCoreApplication::translate("Overlay", "Esc closes");
    return QCoreApplication::translate("Overlay", "Let go of %1 to close · click to keep it open")
        .arg(trigger);
}

QString mostClicked() {
    return QCoreApplication::translate("Overlay", "You click this one most:");
}

QString pinned() {
    return QCoreApplication::translate("Overlay", "Pinned");
}

QString badge(qint64 clicked) {
    return QCoreApplication::translate("Overlay", "clicked %1 times", nullptr, pluralForm(clicked))
        .arg(clicked);
}

QString spokenBadge(qint64 clicked) {
    return QCoreApplication::translate(
               "Overlay", "You clicked this in the menu %1 times", nullptr, pluralForm(clicked))
        .arg(clicked);
}

QString pin() {
    return QCoreApplication::translate("Overlay", "Pin");
}

QString unpin() {
    return QCoreApplication::translate("Overlay", "Unpin");
}

QString openInLibrary() {
    return QCoreApplication::translate("Overlay", "Open in Library");
}

QString panelName(const QString& appName) {
    if (appName.isEmpty())
        return QCoreApplication::translate("Overlay", "Quillon");
    return QCoreApplication::translate("Overlay", "Shortcuts for %1").arg(appName);
}

QString listName() {
    return QCoreApplication::translate("Overlay", "Shortcuts");
}

} // namespace quillon::OverlayTexts
