#pragma once

#include <quillon/kit/records/usage.h>

#include <optional>

namespace quillon::PracticeWeighting {

/// No command ever weighs less, so each has a chance to be asked.
inline constexpr double leastWeight = 0.2;

/// How likely a command is to be asked, against the others of its application: more the more it is clicked
/// instead of typed, the more often it was answered wrong, and when pinned; less when it was answered right
/// or is typed well already. 1 without any history. `typed` at the end of its range is a program error.
double weight(const std::optional<UsageRecord>& record, bool pinned);

} // namespace quillon::PracticeWeighting
