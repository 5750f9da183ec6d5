#include "searched_sheet.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillon {

namespace {

/// Whether two readings of menus came to the same.
bool showTheSame(const std::optional<AppSheet>& a, const AppSheet* b) {
    if (!a || !b)
        return a.has_value() == (b != nullptr);
    return a->bundleID == b->bundleID && a->appName == b->appName && a->entries == b->entries;
}

std::optional<std::size_t> positionOfMostClicked(const PreparedSheet& sheet, const UsageBook& usage) {
    const auto ranked = usage.mostClicked(sheet.bundleID, 1);
    if (ranked.empty())
        return std::nullopt;
    const auto found = std::ranges::find(sheet.entries, ranked.front().id, &PreparedEntry::id);
    if (found == sheet.entries.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - sheet.entries.begin());
}

} // namespace

void SearchedSheet::update(const AppSheet* sheet, const AnnotationBook& annotations, const UsageBook& usage) {
    const bool isOther = std::exchange(m_sheetMayDiffer, false) && !showTheSame(m_source, sheet);
    const bool hasOtherRecords = std::exchange(m_recordsMayDiffer, false);
    if (m_prepared && !isOther && !hasOtherRecords)
        return;
    if (isOther) {
        m_source = sheet ? std::optional(*sheet) : std::nullopt;
        m_indexIsStale = true;
    }
    m_prepared = std::make_shared<const PreparedSheet>(
        m_source ? PreparedSheet::prepare(*m_source, annotations, usage) : PreparedSheet{});
    m_mostClicked = positionOfMostClicked(*m_prepared, usage);
    Notes notes = annotations.notes(m_prepared->bundleID);
    if (notes != m_notes) {
        m_notes = std::move(notes);
        m_indexIsStale = true;
    }
}

const PreparedEntry* SearchedSheet::mostClicked() const {
    return m_mostClicked ? &m_prepared->entries[*m_mostClicked] : nullptr;
}

void SearchedSheet::prepareSearch() {
    if (std::exchange(m_indexIsStale, false))
        m_index = m_source ? SearchIndex(m_source->entries, m_notes, m_words) : SearchIndex();
}

std::vector<std::size_t> SearchedSheet::matches(std::string_view query) {
    if (!query.empty()) {
        prepareSearch();
        return m_index.matches(query);
    }
    std::vector<std::size_t> all(m_prepared ? m_prepared->entries.size() : 0);
    std::iota(all.begin(), all.end(), std::size_t{0});
    return all;
}

} // namespace quillon
