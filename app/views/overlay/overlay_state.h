#pragma once

#include <quillon/app/views/components/symbols.h>
#include <quillon/app/views/components/vocabulary.h>

#include <QString>

#include <cstddef>
#include <optional>

namespace quillon {

/// How the overlay is used.
enum class OverlayMode {
    live,    ///< over the front application
    showcase ///< as an example, with sample data; needs no permission
};

/// What the overlay's main area shows.
enum class OverlayState { needsAccessibility, noSheet, reading, noShortcuts, shortcuts };

/// What the state depends on.
struct OverlayFacts {
    OverlayMode mode = OverlayMode::live;
    bool trusted = false;
    bool hasSheet = false;
    bool hasEntries = false;
    bool reading = false;
};

OverlayState overlayState(const OverlayFacts& facts);

/// A state that is told in words instead of shortcuts.
struct OverlayMessage {
    std::optional<Symbol> symbol;
    QString title;
    QString body;   ///< may be empty
    QString action; ///< label of the button; empty for none

    bool operator==(const OverlayMessage&) const = default;
};

/// The sentences of the overlay.
namespace OverlayTexts {

/// Of every state but `shortcuts`.
OverlayMessage message(
    OverlayState state, const QString& appName, const QString& triggerGlyph, const Vocabulary& vocabulary);
/// In place of the columns when the query finds nothing.
OverlayMessage nothingMatches(const QString& query);

/// "59 shortcuts from its menus"
QString allShortcuts(std::size_t count);
/// "3 of 59 shortcuts"
QString someShortcuts(std::size_t found, std::size_t count);

/// How the overlay is closed.
QString footer(bool sticky, const QString& triggerGlyph);

/// "clicked 14 times"
QString badge(qint64 clicked);
/// The badge as it is read aloud.
QString spokenBadge(qint64 clicked);

} // namespace OverlayTexts

} // namespace quillon
