#pragma once

#include <quillon/kit/base/instant.h>
#include <quillon/kit/coach/nudge_policy.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/usage.h>

#include <optional>

namespace quillon {

/// What to do about a click on a command that has a shortcut.
struct ClickResponse {
    bool counts = false;
    bool nudges = false; ///< only a click that counts does

    bool operator==(const ClickResponse&) const = default;
};

/// `record` and `annotation` are the command's before the click, `now` is its time of day. A click less than
/// a second after the last one is the same click, told twice; one before the last one is not, for then the
/// clock was set back and no click shall be lost for that.
ClickResponse responseToClick(
    const std::optional<UsageRecord>& record, const Annotation& annotation, bool nudgesOn,
    const NudgePolicy& policy, Instant now);

} // namespace quillon
