#pragma once

#include "feed_answer.h"

#include <QUrl>

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>

namespace quillon {

enum class FeedMethod { head, get };

struct FeedRequest {
    QUrl address;
    FeedMethod method = FeedMethod::get;
    std::string sender = {}; ///< who asks: "Quillon/1.0"
};

/// A list of releases that is larger than this is not read, in bytes.
inline constexpr std::int64_t largestFeed = 1 << 20;

/// Sends a request and waits for the answer, on a thread that may wait: until `stop` is requested, when there
/// is none.
using AskFeed = std::function<FeedAnswer(const FeedRequest&, std::stop_token)>;

} // namespace quillon
