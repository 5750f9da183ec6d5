#pragma once

#include <quillon/kit/base/checked.h>
#include <quillon/kit/base/instant.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/usage.h>

#include <optional>

namespace quillon {

/// Decides whether a click on a menu command earns a nudge: a short showing of the shortcut that would have
/// done the same.
struct NudgePolicy {
    Seconds repeatWindow;    ///< the least time between two nudges of one command
    Count graduateAfter = 0; ///< how far typing must lead clicking before nudges stop

    /// Whether to nudge now. `record` counts the click that is being asked about already; an absent one has
    /// never been counted. Never for a muted command, nor within `repeatWindow` of the last nudge (one that
    /// lies in the future included). A difference outside of 64 bits is a program error.
    bool
    shouldNudge(const std::optional<UsageRecord>& record, const Annotation& annotation, Instant now) const;

    /// Whether the command is typed so much more than it is clicked that it needs no nudges any more.
    bool hasGraduated(const UsageRecord& record) const;

    bool operator==(const NudgePolicy&) const = default;
};

/// What the program uses: a command rests for 10 seconds after a nudge, and graduates once it has been typed
/// 5 times more than it was clicked.
inline constexpr NudgePolicy defaultNudgePolicy{.repeatWindow = Seconds(10), .graduateAfter = 5};

} // namespace quillon
