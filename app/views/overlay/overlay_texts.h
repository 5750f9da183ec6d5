#pragma once

#include "overlay_state.h"

#include <quillon/app/views/components/message_words.h>
#include <quillon/app/views/components/vocabulary.h>

#include <QString>

#include <cstddef>

namespace quillon {

/// The sentences of the overlay, whole and ready to be translated.
namespace OverlayTexts {

/// Of every state but `shortcuts`.
MessageWords
message(OverlayState state, const QString& appName, const QString& trigger, const Vocabulary& vocabulary);
/// In place of the columns when the query finds nothing.
MessageWords nothingMatches(const QString& query);

/// "59 shortcuts from its menus"
QString allShortcuts(std::size_t count);
/// "3 of 59 shortcuts"
QString someShortcuts(std::size_t found, std::size_t count);
/// In the empty search field.
QString searchPrompt();

/// How the overlay is closed.
QString closingHint(bool sticky, const QString& trigger);
/// Ahead of the command's title and keys.
QString mostClicked();

/// Title of the card of pinned commands, and what is read of a pinned row.
QString pinned();
/// "clicked 14 times"
QString badge(qint64 clicked);
/// The badge as it is read aloud.
QString spokenBadge(qint64 clicked);

/// The items of a row's menu.
QString pin();
QString unpin();
QString openInLibrary();

/// What screen readers call the panel. Without an application the program's own name.
QString panelName(const QString& appName);
/// What they call the list of rows.
QString listName();

} // namespace OverlayTexts

} // namespace quillon
