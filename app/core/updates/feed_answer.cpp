#include "feed_answer.h"

namespace quillon {

FeedState stateOfFeed(std::optional<int> status) {
    if (!status)
        return FeedState::failed;
    if (*status >= 200 && *status <= 299)
        return FeedState::reachable;
    switch (*status) {
    case 405: // the method is not allowed
    case 501: // the method is not known
        return FeedState::reachable;
    case 404: // not found
    case 410: // gone
        return FeedState::absent;
    default: return FeedState::failed;
    }
}

} // namespace quillon
