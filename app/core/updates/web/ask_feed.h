#pragma once

#include <quillon/app/core/updates/feed_request.h>

namespace quillon {

/// An `AskFeed`. Caches are passed over, nothing is kept and nothing but the answer is taken: no cookies, no
/// passwords. Redirections are followed as far as `FeedAddress::mayLead` lets them. An address that is no
/// feed is not asked.
FeedAnswer askFeed(const FeedRequest& request, std::stop_token stop);

} // namespace quillon
