#pragma once

#include "key_words.h"

#include <quillon/kit/shortcut/modifiers.h>

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillon {

/// A shortcut as it is searched for.
struct ShortcutPattern {
    Modifiers modifiers; ///< these and no others
    std::string keyText; ///< the lower-cased glyph of the key

    bool operator==(const ShortcutPattern&) const = default;
};

/// A search for one shortcut, written out ("cmd shift s"): for any of these, where a word means several keys.
struct ShortcutQuery {
    std::vector<ShortcutPattern> patterns;
};

/// Words that must all occur, or else a shortcut has what they mean.
struct QueryTerm {
    std::vector<std::string> words; ///< lower-cased; at least one
    KeyMeaning meaning;             ///< none of most words
};

/// A search for words, each of which must occur. No terms for a blank query.
struct WordQuery {
    std::vector<QueryTerm> terms;
};

using SearchQuery = std::variant<ShortcutQuery, WordQuery>;

/// What was typed into a search field, read as a shortcut where it is one. Where there are `words`, plus
/// signs part them as blanks do ("Ctrl+S").
SearchQuery readQuery(std::string_view text, const KeyWords& words);

} // namespace quillon
