#pragma once

#include <QUrl>

/// Which addresses are asked for lists of releases.
namespace quillon::FeedAddress {

/// Whether a list of releases is asked for there: https, or a host that is this computer itself.
bool isFeed(const QUrl& address);

/// Whether a request that was sent to the feed `from` may be sent on to `to`: never from https to anything
/// less.
bool mayLead(const QUrl& from, const QUrl& to);

} // namespace quillon::FeedAddress
