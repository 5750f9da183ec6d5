#pragma once

#include "release_look.h"
#include "update_memory.h"

#include <quillon/app/ports/clock.h>

namespace quillon {

/// How long to wait before the next look, at `now`. A last look that lies in the future, on a clock that was
/// set, counts as none.
Seconds waitForLook(std::optional<Instant> lastCheck, Instant now);

/// Looks for a newer release once a day without being asked, and shows one that the user has not put off.
/// Says nothing else, whatever happens.
class DailyCheck {
  public:
    struct Needs {
        const Clock& clock;
        Timers& timers;
        UpdateMemory& memory;
        UpdateNotices& notices;
    };
    static constexpr Seconds interval{24 * 3600.0};
    /// After the start of the program, when other things matter, and after a look that failed.
    static constexpr Seconds earliest{300};
    static constexpr Seconds retry{3 * 3600.0};
    /// Timers do not run while the computer sleeps, so the time is looked at more often than once a day.
    static constexpr Seconds longestWait{3600};

    /// What `needs` and `look` refer to outlives it. `jitter` (0 to 1) spreads the first look over the
    /// minutes after the start, so that not all programs of the world look at once.
    DailyCheck(Needs needs, ReleaseLook::Needs look, const ReleaseSource& source, double jitter);

    /// Nothing without a list of releases.
    void start();

  private:
    void wait(Seconds atLeast);
    void look();
    void looked(const LookResult& result);

    Needs m_needs;
    bool m_hasFeed;
    Seconds m_firstWait;
    ReleaseLook m_look;
    Subscription m_timer;
};

} // namespace quillon
