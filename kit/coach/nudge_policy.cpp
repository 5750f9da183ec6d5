#include "nudge_policy.h"

namespace quillon {

bool NudgePolicy::shouldNudge(
    const std::optional<UsageRecord>& record, const Annotation& annotation, Instant now) const {
    if (annotation.muted)
        return false;
    const UsageRecord known = record.value_or(UsageRecord{});
    if (known.lastNudged && secondsBetween(*known.lastNudged, now) < repeatWindow)
        return false;
    return !hasGraduated(known);
}

bool NudgePolicy::hasGraduated(const UsageRecord& record) const {
    return checkedSubtract(record.typed, record.clicked) >= graduateAfter;
}

} // namespace quillon
