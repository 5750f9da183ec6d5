#include "practice_weighting.h"

#include <quillon/kit/base/checked.h>

#include <algorithm>

namespace quillon {

double PracticeWeighting::weight(const std::optional<UsageRecord>& record, bool pinned) {
    const UsageRecord known = record.value_or(UsageRecord{});
    const auto clicked = static_cast<double>(known.clicked);
    double weight = 1 + 3 * clicked / static_cast<double>(checkedAdd(known.typed, 1));
    weight += 1.5 * static_cast<double>(std::min<Count>(known.practiceWrong, 6));
    weight -= 0.25 * static_cast<double>(std::min<Count>(known.practiceRight, 3));
    if (known.clicked == 0 && known.typed > 4)
        weight *= 0.5;
    if (pinned)
        weight *= 1.5;
    return weight <= leastWeight ? leastWeight : weight;
}

} // namespace quillon
