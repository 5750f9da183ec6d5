#pragma once

#include "feed_request.h"
#include "timed_job.h"
#include "update_notices.h"

#include <quillon/app/ports/update_framework.h>

#include <string>

namespace quillon {

/// The user's check for updates. Before it hands over to the framework it probes the list of releases, so
/// that one that does not exist yet, or a network that cannot be reached, gives a plain message.
class Updater {
  public:
    struct Needs {
        UpdateFramework& framework;
        UpdateNotices& notices;
        Background& background;
        Timers& timers;
        AskFeed ask;
        std::string sender; ///< who asks, as in `FeedRequest`
    };
    /// How long the probe may take.
    static constexpr Seconds probeLimit{15};

    /// What `needs` refers to outlives it.
    explicit Updater(Needs needs);

    /// Whether a probe is under way.
    bool checking() const { return m_probe.isRunning(); }
    /// Nothing while a probe is under way.
    void checkForUpdates();

  private:
    void probed(FeedState state);

    Needs m_needs;
    TimedJob m_probe;
};

} // namespace quillon
