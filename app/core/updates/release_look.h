#pragma once

#include "feed_request.h"
#include "timed_job.h"
#include "update_notices.h"

#include <functional>
#include <string>
#include <variant>

namespace quillon {

/// A newer release, or what else there is to tell.
using LookResult = std::variant<Release, UpdateNotice>;

/// What an answer means to a program of version `own`.
LookResult resultOf(const FeedAnswer& answer, const ReleaseVersion& own);

/// Where to look for releases of which program.
struct ReleaseSource {
    std::string feedAddress; ///< "" for none
    std::string version;     ///< of this program

    /// The program as it names itself to servers.
    std::string sender() const { return "Quillon/" + version; }
};

/// Gets the list of releases and looks for a newer one, once at a time.
class ReleaseLook {
  public:
    struct Needs {
        Background& background;
        Timers& timers;
        AskFeed ask;
    };
    /// A list that takes longer to get is not waited for.
    static constexpr Seconds limit{30};

    /// What `needs` refers to outlives it.
    ReleaseLook(Needs needs, const ReleaseSource& source);

    bool isLooking() const { return m_job.isRunning(); }
    /// Calls `done` on the main thread when it is known. Not while one is under way.
    void look(std::function<void(LookResult)> done);

  private:
    AskFeed m_ask;
    FeedRequest m_request;
    ReleaseVersion m_own;
    TimedJob m_job;
};

} // namespace quillon
