#pragma once

#include <optional>
#include <string>

namespace quillon {

/// What a server answered.
struct FeedAnswer {
    std::optional<int> status =
        {};                ///< of HTTP; absent: no answer, one that is not HTTP, or one that broke off
    std::string body = {}; ///< of a status from 200 to 299; else empty

    bool operator==(const FeedAnswer&) const = default;
};

/// What the answer to a probe says of the list of releases.
enum class FeedState {
    reachable,
    absent, ///< there is no list yet, and so no newer release
    failed,
};

/// `status` as in `FeedAnswer`. A server that refuses to be probed has been reached.
FeedState stateOfFeed(std::optional<int> status);

} // namespace quillon
