#include "click_response.h"

#include <quillon/kit/base/checked.h>

namespace quillon {

namespace {

constexpr Seconds repeatWindow{1.0};

bool isRepeat(const UsageRecord& record, Instant now) {
    if (!record.lastClicked)
        return false;
    const Seconds since = secondsBetween(*record.lastClicked, now);
    return since >= Seconds(0) && since < repeatWindow;
}

} // namespace

ClickResponse responseToClick(
    const std::optional<UsageRecord>& record, const Annotation& annotation, bool nudgesOn,
    const NudgePolicy& policy, Instant now) {
    UsageRecord counted = record.value_or(UsageRecord{});
    if (isRepeat(counted, now))
        return {};
    counted.clicked = checkedAdd(counted.clicked, 1);
    counted.lastClicked = now;
    return {.counts = true, .nudges = nudgesOn && policy.shouldNudge(counted, annotation, now)};
}

} // namespace quillon
