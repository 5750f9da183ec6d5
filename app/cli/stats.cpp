#include "stats.h"

#include "app_choice.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

namespace quillon {

namespace {

CommandStats
commandStats(const std::string& id, const UsageRecord& record, const AppSheet* sheet, Count graduateAfter) {
    const MenuEntry* const entry = sheet ? sheet->entry(id) : nullptr;
    return {
        .id = id,
        .shortcut = entry ? std::optional(entry->shortcut) : std::nullopt,
        .clicked = record.clicked,
        .typed = record.typed,
        .graduated = checkedSubtract(record.typed, record.clicked) >= graduateAfter};
}

/// The commands that were typed and never clicked, the most typed first, among equals in the order of ids.
std::vector<UsageBook::Ranked> onlyTyped(const UsageRecords& records) {
    std::vector<UsageBook::Ranked> found;
    for (const auto& [id, record] : records) {
        if (record.clicked == 0 && record.typed > 0)
            found.push_back({id, record});
    }
    std::ranges::stable_sort(
        found, std::greater(), [](const UsageBook::Ranked& ranked) { return ranked.record.typed; });
    return found;
}

AppStats
appStats(const UsageBook& usage, const std::string& bundleID, const AppSheet* sheet, Count graduateAfter) {
    const UsageRecords& records = usage.records(bundleID);
    std::vector<UsageBook::Ranked> ranked = usage.mostClicked(bundleID, static_cast<Count>(records.size()));
    std::ranges::move(onlyTyped(records), std::back_inserter(ranked));

    const UsageBook::Totals totals = usage.totals(bundleID);
    AppStats stats{
        .bundleID = bundleID,
        .appName = sheet ? sheet->appName : "",
        .clicked = totals.clicked,
        .typed = totals.typed,
        .commands = {}};
    for (const auto& [id, record] : ranked) {
        stats.replaced = checkedAdd(stats.replaced, record.clicked > 0 ? record.typed : 0);
        stats.commands.push_back(commandStats(id, record, sheet, graduateAfter));
    }
    return stats;
}

} // namespace

std::vector<AppStats> statsOf(const UsageBook& usage, const SheetMap& sheets, Count graduateAfter) {
    std::vector<AppStats> all;
    for (const auto& [bundleID, records] : usage.apps) {
        const auto sheet = sheets.find(bundleID);
        AppStats stats =
            appStats(usage, bundleID, sheet == sheets.end() ? nullptr : &sheet->second, graduateAfter);
        if (!stats.commands.empty())
            all.push_back(std::move(stats));
    }
    return all;
}

std::vector<AppStats> statsOfApp(const std::vector<AppStats>& all, std::string_view name) {
    std::vector<ListedApp> apps;
    apps.reserve(all.size());
    for (const AppStats& stats : all)
        apps.push_back({{0, stats.bundleID, stats.appName, {}}, "", {}});
    const auto chosen = appCalled(name, apps);
    std::vector<AppStats> found;
    std::ranges::copy_if(all, std::back_inserter(found), [&chosen](const AppStats& stats) {
        return chosen && stats.bundleID == chosen->bundleID;
    });
    return found;
}

} // namespace quillon
