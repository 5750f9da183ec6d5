#include "current_sheet.h"

#include "sheet_arrival.h"

#include <algorithm>
#include <utility>

namespace quillon {

void CurrentSheet::load(SharedSheets sheets) {
    m_sheets = std::move(sheets);
    m_usedInOrder.clear();
    m_entries = 0;
    for (const auto& [bundleID, sheet] : m_sheets) {
        m_usedInOrder.push_back(bundleID);
        m_entries += sheet->entries.size();
    }
    std::ranges::stable_sort(
        m_usedInOrder, {}, [this](const std::string& bundleID) { return m_sheets.at(bundleID)->readAt; });
    dropLeastRecent();
}

void CurrentSheet::frontIs(const RunningApp& app) {
    m_answered = m_answered || !m_current || m_current->bundleID != app.bundleID;
    const auto known = m_sheets.find(app.bundleID);
    if (known == m_sheets.end())
        return setCurrent({app.bundleID, app.name, {}, distantPast});
    setCurrent(*known->second);
    touch(app.bundleID);
}

bool CurrentSheet::arrived(const RunningApp& app, AppSheet sheet, ReadOutcome outcome, bool isInFront) {
    const auto cached = m_sheets.find(app.bundleID);
    const SheetArrival arrival = decideSheetArrival({
        .produced = outcome != ReadOutcome::unavailable,
        .complete = outcome != ReadOutcome::partial,
        .entries = sheet.entries.size(),
        .cachedEntries = cached == m_sheets.end() ? 0 : cached->second->entries.size(),
        .isIdentified = !app.bundleID.empty(),
        .anythingCurrent = m_current.has_value(),
        .currentIsThatApp = m_current && m_current->bundleID == app.bundleID,
        .thatAppIsInFront = isInFront,
    });
    switch (arrival.current) {
    case SheetArrival::Current::keep: break;
    case SheetArrival::Current::takeNew: setCurrent(sheet); break;
    case SheetArrival::Current::takeCached: setCurrent(*cached->second); break;
    }
    const bool wasAsked = outcome != ReadOutcome::unavailable;
    if (wasAsked && m_current && m_current->bundleID == app.bundleID)
        m_answered = outcome != ReadOutcome::partial;
    if (arrival.store)
        store(std::move(sheet));
    return arrival.store;
}

void CurrentSheet::show(AppSheet sheet) {
    m_answered = true;
    setCurrent(std::move(sheet));
}

void CurrentSheet::clear() {
    m_sheets.clear();
    m_usedInOrder.clear();
    m_entries = 0;
    m_answered = true;
    if (std::exchange(m_current, std::nullopt))
        ++m_revision;
}

void CurrentSheet::setCurrent(AppSheet sheet) {
    if (m_current == sheet)
        return;
    m_current = std::move(sheet);
    ++m_revision;
}

void CurrentSheet::store(AppSheet sheet) {
    const std::string bundleID = sheet.bundleID;
    m_entries += sheet.entries.size();
    if (const auto former = m_sheets.find(bundleID); former != m_sheets.end())
        m_entries -= former->second->entries.size();
    m_sheets.insert_or_assign(bundleID, SharedSheet(std::move(sheet)));
    touch(bundleID);
    dropLeastRecent();
}

void CurrentSheet::touch(const std::string& bundleID) {
    std::erase(m_usedInOrder, bundleID);
    m_usedInOrder.push_back(bundleID);
}

void CurrentSheet::dropLeastRecent() {
    auto candidate = m_usedInOrder.begin();
    while ((m_entries > mostEntries || m_sheets.size() > mostSheets) && candidate != m_usedInOrder.end()) {
        if (m_current && *candidate == m_current->bundleID) {
            ++candidate;
            continue;
        }
        const auto dropped = m_sheets.find(*candidate);
        m_entries -= dropped->second->entries.size();
        m_sheets.erase(dropped);
        candidate = m_usedInOrder.erase(candidate);
    }
}

} // namespace quillon
