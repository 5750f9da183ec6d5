#pragma once

#include <quillon/kit/base/checked.h>
#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/usage.h>
#include <quillon/kit/records/weeks.h>

#include <QString>

#include <optional>
#include <vector>

namespace quillon {

/// One week of the chart.
struct WeekBar {
    Day monday;
    Count clicked = 0;
    Count typed = 0;

    bool operator==(const WeekBar&) const = default;
};

/// What somebody learned of one application's shortcuts, ready to be shown.
struct LearnedSummary {
    /// So many weeks are shown.
    static constexpr int weekCount = 12;

    std::vector<WeekBar> weeks;     ///< the earliest first, this week last
    std::vector<QString> graduated; ///< the commands that need no nudges any more, most typed first
    Count typed = 0;                ///< how often their shortcuts were typed, all told

    bool operator==(const LearnedSummary&) const = default;
};

/// Of the application of `sheet`, on `today`. Absent when nothing was counted yet. Commands that its menus no
/// longer have are left out of `graduated`.
std::optional<LearnedSummary>
learnedSummary(const AppSheet& sheet, const UsageBook& usage, const WeekSums& weeks, Day today);

} // namespace quillon
