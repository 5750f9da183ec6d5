#include "usage.h"

#include <quillon/kit/base/hash.h>
#include <quillon/kit/base/program_error.h>

#include <algorithm>
#include <cstddef>

namespace quillon {

namespace {

/// The stored record, made if missing.
UsageRecord& recordOf(UsageBook& book, std::string_view app, std::string_view id) {
    return book.apps[std::string(app)][std::string(id)];
}

void increment(Count& counter) {
    counter = checkedAdd(counter, 1);
}

} // namespace

void UsageBook::click(std::string_view app, std::string_view id, Instant time) {
    UsageRecord& record = recordOf(*this, app, id);
    increment(record.clicked);
    record.lastClicked = time;
}

void UsageBook::typed(std::string_view app, std::string_view id) {
    increment(recordOf(*this, app, id).typed);
}

void UsageBook::nudged(std::string_view app, std::string_view id, Instant time) {
    recordOf(*this, app, id).lastNudged = time;
}

void UsageBook::practiced(std::string_view app, std::string_view id, bool correct) {
    UsageRecord& record = recordOf(*this, app, id);
    increment(correct ? record.practiceRight : record.practiceWrong);
}

std::optional<UsageRecord> UsageBook::record(std::string_view app, std::string_view id) const {
    const UsageRecords& known = records(app);
    const auto found = known.find(id);
    return found == known.end() ? std::nullopt : std::optional(found->second);
}

const UsageRecords& UsageBook::records(std::string_view app) const {
    static const UsageRecords none;
    const auto found = apps.find(app);
    return found == apps.end() ? none : found->second;
}

UsageBook::Totals UsageBook::totals(std::string_view app) const {
    Totals totals;
    for (const auto& [id, record] : records(app)) {
        totals.clicked = checkedAdd(totals.clicked, record.clicked);
        totals.typed = checkedAdd(totals.typed, record.typed);
    }
    return totals;
}

std::vector<UsageBook::Ranked> UsageBook::mostClicked(std::string_view app, Count limit) const {
    if (limit < 0)
        programError("mostClicked: the limit must not be negative");
    struct Candidate {
        Count lead;
        const UsageRecords::value_type* record;
    };
    std::vector<Candidate> candidates;
    for (const auto& stored : records(app)) {
        if (stored.second.clicked > 0)
            candidates.push_back({checkedSubtract(stored.second.clicked, stored.second.typed), &stored});
    }
    std::ranges::sort(candidates, [](const Candidate& a, const Candidate& b) {
        return a.lead != b.lead ? a.lead > b.lead : a.record->first > b.record->first;
    });
    if (static_cast<std::size_t>(limit) < candidates.size())
        candidates.resize(static_cast<std::size_t>(limit));
    std::vector<Ranked> ranked;
    ranked.reserve(candidates.size());
    for (const Candidate& candidate : candidates)
        ranked.push_back({candidate.record->first, candidate.record->second});
    return ranked;
}

} // namespace quillon

std::size_t std::hash<quillon::UsageRecord>::operator()(const quillon::UsageRecord& record) const noexcept {
    return quillon::hashOf(
        record.clicked, record.typed, record.practiceRight, record.practiceWrong, record.lastClicked,
        record.lastNudged);
}

std::size_t std::hash<quillon::UsageBook>::operator()(const quillon::UsageBook& book) const noexcept {
    return quillon::hashOf(book.apps);
}
