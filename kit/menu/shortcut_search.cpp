#include "shortcut_search.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillon {

namespace {

ShortcutPattern patternOf(const Shortcut& shortcut) {
    return {shortcut.modifiers, unicode::toLower(shortcut.key.glyph())};
}

std::string haystackOf(const MenuEntry& entry, const Notes& notes, const KeyWords& words) {
    std::string text = entry.searchText();
    text += ' ';
    // Most applications have no notes at all: do not build every id to find that out.
    if (!notes.empty()) {
        if (const auto note = notes.find(entry.id()); note != notes.end())
            text += note->second;
    }
    if (!words.isEmpty())
        text.append(" ").append(words.termsOf(entry.shortcut));
    return unicode::toLower(text);
}

bool has(const ShortcutPattern& shortcut, const KeyMeaning& meaning) {
    return !shortcut.modifiers.isDisjoint(meaning.modifiers)
           || std::ranges::find(meaning.keyTexts, shortcut.keyText) != meaning.keyTexts.end();
}

bool holds(std::string_view haystack, const ShortcutPattern& shortcut, const QueryTerm& term) {
    const bool occurs = std::ranges::all_of(
        term.words, [haystack](const std::string& word) { return haystack.find(word) != std::string::npos; });
    return occurs || has(shortcut, term.meaning);
}

bool holdsAll(
    std::string_view haystack, const ShortcutPattern& shortcut, const std::vector<QueryTerm>& terms) {
    return std::ranges::all_of(terms, [&](const QueryTerm& term) { return holds(haystack, shortcut, term); });
}

bool isAnyOf(const ShortcutPattern& shortcut, const std::vector<ShortcutPattern>& patterns) {
    return std::ranges::find(patterns, shortcut) != patterns.end();
}

} // namespace

std::vector<MenuEntry> ShortcutSearch::filter(
    std::span<const MenuEntry> entries, std::string_view query, const Notes& notes, const KeyWords& words) {
    const SearchQuery read = readQuery(query, words);
    std::vector<MenuEntry> kept;
    if (const ShortcutQuery* shortcut = std::get_if<ShortcutQuery>(&read)) {
        std::ranges::copy_if(entries, std::back_inserter(kept), [&](const MenuEntry& entry) {
            return isAnyOf(patternOf(entry.shortcut), shortcut->patterns);
        });
        return kept;
    }
    const std::vector<QueryTerm>& terms = std::get<WordQuery>(read).terms;
    std::ranges::copy_if(entries, std::back_inserter(kept), [&](const MenuEntry& entry) {
        return terms.empty() || holdsAll(haystackOf(entry, notes, words), patternOf(entry.shortcut), terms);
    });
    return kept;
}

SearchIndex::SearchIndex(std::span<const MenuEntry> entries, const Notes& notes, KeyWords words)
    : m_words(std::move(words)) {
    m_records.reserve(entries.size());
    for (const MenuEntry& entry : entries)
        m_records.push_back({haystackOf(entry, notes, m_words), patternOf(entry.shortcut)});
}

std::vector<std::size_t> SearchIndex::matches(std::string_view query) const {
    const SearchQuery read = readQuery(query, m_words);
    const ShortcutQuery* const shortcut = std::get_if<ShortcutQuery>(&read);
    const WordQuery* const words = std::get_if<WordQuery>(&read);
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < m_records.size(); ++i) {
        const Record& record = m_records[i];
        const bool matching = shortcut ? isAnyOf(record.shortcut, shortcut->patterns)
                                       : holdsAll(record.haystack, record.shortcut, words->terms);
        if (matching)
            positions.push_back(i);
    }
    return positions;
}

} // namespace quillon
