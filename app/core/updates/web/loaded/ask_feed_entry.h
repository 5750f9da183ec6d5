#pragma once

#include <quillon/app/core/updates/feed_request.h>

namespace quillon {

/// The one function of the library, by the name that it has there. Both are of the same build.
using AskFeedEntry = void(const FeedRequest& request, const std::stop_token& stop, FeedAnswer& answer);
inline constexpr auto askFeedEntryName = "quillonAskFeed";

} // namespace quillon
