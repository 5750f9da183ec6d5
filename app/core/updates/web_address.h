#pragma once

#include <QString>
#include <QUrl>

#include <optional>
#include <string>

/// Which addresses are asked for releases, and which pages are opened.
namespace quillon::WebAddress {

/// Longer ones are none. In characters.
inline constexpr qsizetype longest = 2048;

/// Whether a list of releases is asked for there: https, or a host that is this computer itself.
bool isFeed(const QUrl& address);

/// Whether a request that was sent to the feed `from` may be sent on to `to`: never from https to anything
/// less.
bool mayLead(const QUrl& from, const QUrl& to);

/// A page that the user's browser may be sent to: https, without a user's name in it. Absent for any other.
std::optional<std::string> page(const QString& text);

} // namespace quillon::WebAddress
