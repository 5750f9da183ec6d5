#pragma once

#include <quillon/app/core/updates/feed_request.h>

#include <QString>

namespace quillon {

/// Asks by the library in `file`, which is loaded at the first request and stays: most days the program asks
/// for nothing, and what the toolkit needs of the network would be in memory all the same. Where the library
/// cannot be loaded there is no answer, and the log says why.
AskFeed loadedAskFeed(const QString& file);

} // namespace quillon
