#include "learned_summary.h"

#include <quillon/app/views/components/foreign_text.h>
#include <quillon/kit/coach/nudge_policy.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <utility>

namespace quillon {

namespace {

std::vector<WeekBar> barsOf(const WeekSums& sums, Day today) {
    std::vector<WeekBar> bars;
    for (int back = LearnedSummary::weekCount - 1; back >= 0; --back) {
        WeekBar bar{.monday = mondayOf(today) - std::chrono::weeks(back)};
        if (const auto sum = sums.find(weekName(bar.monday)); sum != sums.end()) {
            bar.clicked = sum->second.clicked;
            bar.typed = sum->second.typed;
        }
        bars.push_back(bar);
    }
    return bars;
}

std::vector<QString> graduatedOf(const AppSheet& sheet, const UsageRecords& usage) {
    std::vector<std::pair<Count, QString>> found;
    for (const MenuEntry& entry : sheet.entries)
        if (const auto record = usage.find(entry.id());
            record != usage.end() && defaultNudgePolicy.hasGraduated(record->second))
            found.emplace_back(record->second.typed, foreignLine(entry.title()));
    std::ranges::stable_sort(found, std::greater(), &std::pair<Count, QString>::first);
    std::vector<QString> titles;
    for (auto& [typed, title] : found)
        titles.push_back(std::move(title));
    return titles;
}

} // namespace

std::optional<LearnedSummary>
learnedSummary(const AppSheet& sheet, const UsageBook& usage, const WeekSums& weeks, Day today) {
    const auto [clicked, typed] = usage.totals(sheet.bundleID);
    if (clicked == 0 && typed == 0)
        return std::nullopt;
    LearnedSummary summary;
    summary.typed = typed;
    summary.weeks = barsOf(weeks, today);
    summary.graduated = graduatedOf(sheet, usage.records(sheet.bundleID));
    return summary;
}

} // namespace quillon
