#include "shortcut_search.h"

#include "search_query.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>

namespace quillon {

namespace {

std::string keyGlyph(const MenuEntry& entry) {
    return unicode::toLower(entry.shortcut.key.glyph());
}

std::string haystackOf(const MenuEntry& entry, const Notes& notes) {
    std::string text = entry.searchText();
    text += ' ';
    // Most applications have no notes at all: do not build every id to find that out.
    if (!notes.empty()) {
        if (const auto note = notes.find(entry.id()); note != notes.end())
            text += note->second;
    }
    return unicode::toLower(text);
}

bool holdsAll(std::string_view haystack, const std::vector<std::string>& words) {
    return std::ranges::all_of(
        words, [haystack](const std::string& word) { return haystack.find(word) != std::string_view::npos; });
}

} // namespace

std::vector<MenuEntry>
ShortcutSearch::filter(std::span<const MenuEntry> entries, std::string_view query, const Notes& notes) {
    const SearchQuery read = readQuery(query);
    std::vector<MenuEntry> kept;
    if (const ShortcutQuery* shortcut = std::get_if<ShortcutQuery>(&read)) {
        std::ranges::copy_if(entries, std::back_inserter(kept), [&](const MenuEntry& entry) {
            return entry.shortcut.modifiers == shortcut->modifiers && keyGlyph(entry) == shortcut->keyText;
        });
        return kept;
    }
    const std::vector<std::string>& words = std::get<WordQuery>(read).words;
    std::ranges::copy_if(entries, std::back_inserter(kept), [&](const MenuEntry& entry) {
        return words.empty() || holdsAll(haystackOf(entry, notes), words);
    });
    return kept;
}

SearchIndex::SearchIndex(std::span<const MenuEntry> entries, const Notes& notes) {
    m_records.reserve(entries.size());
    for (const MenuEntry& entry : entries)
        m_records.push_back({haystackOf(entry, notes), keyGlyph(entry), entry.shortcut.modifiers});
}

std::vector<std::size_t> SearchIndex::matches(std::string_view query) const {
    const SearchQuery read = readQuery(query);
    const ShortcutQuery* const shortcut = std::get_if<ShortcutQuery>(&read);
    const WordQuery* const words = std::get_if<WordQuery>(&read);
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < m_records.size(); ++i) {
        const Record& record = m_records[i];
        const bool matching =
            shortcut ? record.modifiers == shortcut->modifiers && record.keyGlyph == shortcut->keyText
                     : holdsAll(record.haystack, words->words);
        if (matching)
            positions.push_back(i);
    }
    return positions;
}

} // namespace quillon
