#pragma once

#include "menu_entry.h"
#include "search_query.h"

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The user's notes of one application, by entry id.
using Notes = std::map<std::string, std::string, std::less<>>;

namespace ShortcutSearch {

/// The entries that match what was typed, in input order. A query of modifier words or glyphs and one key
/// ("cmd shift s") finds exactly that shortcut; any other finds the entries whose path, shortcut terms and
/// note hold every word. A blank query finds all. `words` are further words for keys; in the searched text
/// each shortcut has the names that it is shown with as well.
std::vector<MenuEntry> filter(
    std::span<const MenuEntry> entries, std::string_view query, const Notes& notes,
    const KeyWords& words = {});

} // namespace ShortcutSearch

/// The same search over entries prepared once, for a query that changes with every key. Holds the lower-cased
/// texts of the entries, not the entries: positions refer to the list it was made from.
class SearchIndex {
  public:
    SearchIndex() = default;
    SearchIndex(std::span<const MenuEntry> entries, const Notes& notes, KeyWords words = {});

    /// The positions of the matching entries, ascending.
    std::vector<std::size_t> matches(std::string_view query) const;
    std::size_t size() const { return m_records.size(); }

  private:
    struct Record {
        std::string haystack; ///< lower-cased search text and note
        ShortcutPattern shortcut;
    };
    KeyWords m_words;
    std::vector<Record> m_records;
};

} // namespace quillon
