#include "library_rows.h"

#include "library_texts.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/menu/menu_group.h>

#include <utility>

namespace quillon {

namespace {

constexpr Count mostToLearn = 3;

/// The rows of one application while they are put together.
class Rows {
  public:
    Rows(const AppSheet& sheet, const LibraryRecords& records)
        : m_sheet(sheet), m_usage(records.usage.records(sheet.bundleID)),
          m_said(records.annotations.annotations(sheet.bundleID)), m_book(records.usage) {}

    void addStatistics(Instant now) {
        const auto count = static_cast<qint64>(m_sheet.entries.size());
        const QString ago = LibraryTexts::ago(secondsBetween(m_sheet.readAt, now));
        m_rows.push_back(
            {.kind = LibraryRow::Kind::statistics, .text = LibraryTexts::statistics(count, ago)});
        const auto [clicked, typed] = m_book.totals(m_sheet.bundleID);
        m_rows.push_back(
            {.kind = LibraryRow::Kind::totals,
             .text = LibraryTexts::menuClicks(clicked),
             .counts = LibraryTexts::shortcutsTyped(typed)});
    }

    void addToLearn() {
        bool isFirst = true;
        for (const auto& ranked : m_book.mostClicked(m_sheet.bundleID, mostToLearn)) {
            const MenuEntry* const entry = m_sheet.entry(ranked.id);
            if (!entry)
                continue;
            if (std::exchange(isFirst, false))
                addHeading(LibraryTexts::learnNext());
            addCommand(*entry);
        }
    }

    void addMenus(std::string_view query) {
        for (const MenuGroup& group : MenuGroup::group(
                 ShortcutSearch::filter(m_sheet.entries, query, notes(), translatedKeyWords()))) {
            addHeading(foreignLine(group.menu));
            for (const MenuEntry& entry : group.entries)
                addCommand(entry);
        }
    }

    std::vector<LibraryRow> take() { return std::move(m_rows); }

  private:
    Notes notes() const {
        Notes notes;
        for (const auto& [id, annotation] : m_said)
            if (!annotation.note.empty())
                notes.emplace(id, annotation.note);
        return notes;
    }

    void addHeading(QString text) {
        m_rows.push_back({.kind = LibraryRow::Kind::heading, .text = std::move(text)});
    }

    void addCommand(const MenuEntry& entry) {
        LibraryRow row{.text = foreignLine(entry.title()), .shortcut = entry.shortcut, .entryID = entry.id()};
        if (const auto record = m_usage.find(row.entryID); record != m_usage.end()) {
            const Count clicked = record->second.clicked;
            const Count typed = record->second.typed;
            if (clicked > 0 || typed > 0)
                row.counts = LibraryTexts::counts(clicked, typed);
            row.leansOnClicks = clicked > typed;
        }
        if (const auto annotation = m_said.find(row.entryID); annotation != m_said.end())
            row.note = singleLine(annotation->second.note);
        m_rows.push_back(std::move(row));
    }

    const AppSheet& m_sheet;
    const UsageRecords& m_usage;
    const Annotations& m_said;
    const UsageBook& m_book;
    std::vector<LibraryRow> m_rows;
};

} // namespace

std::vector<LibraryRow>
libraryRows(const AppSheet& sheet, const LibraryRecords& records, std::string_view query, Instant now) {
    Rows rows(sheet, records);
    rows.addStatistics(now);
    rows.addToLearn();
    rows.addMenus(query);
    return rows.take();
}

} // namespace quillon
