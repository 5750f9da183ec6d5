#include "overlay_state.h"

namespace quillon {

using namespace Qt::StringLiterals;

OverlayState overlayState(const OverlayFacts& facts) {
    if (facts.mode == OverlayMode::live && !facts.trusted)
        return OverlayState::needsAccessibility;
    if (!facts.hasSheet)
        return OverlayState::noSheet;
    if (facts.hasEntries)
        return OverlayState::shortcuts;
    return facts.reading ? OverlayState::reading : OverlayState::noShortcuts;
}

namespace OverlayTexts {

OverlayMessage message(
    OverlayState state, const QString& appName, const QString& triggerGlyph, const Vocabulary& vocabulary) {
    switch (state) {
    case OverlayState::needsAccessibility:
        return {
            .symbol = Symbol::handRaised,
            .title = u"Quillon needs Accessibility to read menus"_s,
            .body = QString(
                u"Allow it once in " % vocabulary.accessibilitySettings % u". Nothing leaves your "
                % vocabulary.computer % u"."),
            .action = u"Show Me How"_s,
        };
    case OverlayState::noSheet:
        return {
            .symbol = Symbol::keyboard,
            .title = QString(u"Switch to an app, then hold " % triggerGlyph),
            .body = {},
            .action = {},
        };
    case OverlayState::reading:
        return {
            .symbol = Symbol::hourglass,
            .title = QString(u"Reading " % appName % u"’s menus…"),
            .body = {},
            .action = {},
        };
    case OverlayState::noShortcuts:
        return {
            .symbol = Symbol::menuBarRectangle,
            .title = QString(u"No menu shortcuts in " % appName),
            .body =
                QString(u"Some apps draw their own menus, which " % vocabulary.system % u" doesn’t share."),
            .action = {},
        };
    case OverlayState::shortcuts: break;
    }
    return {};
}

OverlayMessage nothingMatches(const QString& query) {
    return {
        .symbol = std::nullopt,
        .title = QString(u"Nothing matches “" % query % u"”"),
        .body = {},
        .action = {},
    };
}

QString allShortcuts(std::size_t count) {
    return QString(QString::number(count) % u" shortcuts from its menus");
}

QString someShortcuts(std::size_t found, std::size_t count) {
    return QString(QString::number(found) % u" of " % QString::number(count) % u" shortcuts");
}

QString footer(bool sticky, const QString& triggerGlyph) {
    if (sticky)
        return u"Esc closes"_s;
    return QString(u"Let go of " % triggerGlyph % u" to close · click to keep it open");
}

QString badge(qint64 clicked) {
    return QString(u"clicked " % QString::number(clicked) % u" times");
}

QString spokenBadge(qint64 clicked) {
    return QString(u"You clicked this in the menu " % QString::number(clicked) % u" times");
}

} // namespace OverlayTexts

} // namespace quillon
