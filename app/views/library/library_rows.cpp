#include "library_rows.h"

#include "library_texts.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr Count mostToLearn = 3;

/// The rows of one application while they are put together.
class Rows {
  public:
    Rows(const PreparedSheet& sheet, const UsageBook& usage) : m_sheet(sheet), m_usage(usage) {}

    void addStatistics(Seconds age) {
        const auto count = static_cast<qint64>(m_sheet.entries.size());
        m_rows.push_back(
            {.kind = LibraryRow::Kind::statistics,
             .text = LibraryTexts::statistics(count, LibraryTexts::ago(age))});
        const auto [clicked, typed] = m_usage.totals(m_sheet.bundleID);
        m_rows.push_back(
            {.kind = LibraryRow::Kind::totals,
             .text = LibraryTexts::menuClicks(clicked),
             .counts = LibraryTexts::shortcutsTyped(typed)});
    }

    void addToLearn() {
        const std::size_t before = m_rows.size();
        addHeading(LibraryTexts::learnNext());
        for (const auto& ranked : m_usage.mostClicked(m_sheet.bundleID, mostToLearn))
            if (const auto entry = std::ranges::find(m_sheet.entries, ranked.id, &PreparedEntry::id);
                entry != m_sheet.entries.end())
                addCommand(*entry);
        if (m_rows.size() == before + 1)
            m_rows.pop_back();
        for (std::size_t row = before; row < m_rows.size(); ++row)
            m_rows[row].isToLearn = true;
    }

    void addMenus(const std::vector<std::size_t>& matches) {
        std::vector<std::vector<std::size_t>> menus(m_sheet.menus.size());
        for (const std::size_t match : matches)
            menus[m_sheet.entries[match].menu].push_back(match);
        m_rows.reserve(m_rows.size() + matches.size() + menus.size());
        for (std::size_t menu = 0; menu < menus.size(); ++menu) {
            if (!menus[menu].empty())
                addHeading(m_sheet.menus[menu]);
            for (const std::size_t entry : menus[menu])
                addCommand(m_sheet.entries[entry]);
        }
    }

    std::vector<LibraryRow> take() { return std::move(m_rows); }

  private:
    void addHeading(QString text) {
        m_rows.push_back({.kind = LibraryRow::Kind::heading, .text = std::move(text)});
    }

    void addCommand(const PreparedEntry& entry) {
        m_rows.push_back(
            {.text = entry.title,
             .counts = entry.clicked > 0 || entry.typed > 0 ? LibraryTexts::counts(entry.clicked, entry.typed)
                                                            : QString(),
             .leansOnClicks = entry.clicked > entry.typed,
             .pinned = entry.pinned,
             .muted = entry.muted,
             .note = entry.note,
             .shortcut = entry.shortcut,
             .entryID = entry.id});
    }

    const PreparedSheet& m_sheet;
    const UsageBook& m_usage;
    std::vector<LibraryRow> m_rows;
};

} // namespace

std::vector<LibraryRow> libraryRows(
    const PreparedSheet& sheet, const UsageBook& usage, const std::vector<std::size_t>& matches,
    Seconds age) {
    Rows rows(sheet, usage);
    rows.addStatistics(age);
    rows.addToLearn();
    rows.addMenus(matches);
    return rows.take();
}

} // namespace quillon
