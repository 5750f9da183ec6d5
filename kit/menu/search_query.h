#pragma once

#include <quillon/kit/shortcut/modifiers.h>

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillon {

/// A search for one shortcut, written out ("cmd shift s").
struct ShortcutQuery {
    Modifiers modifiers;
    std::string keyText; ///< the lower-cased glyph of the key
};

/// A search for words, each of which must occur. Lower-cased; none for a blank query.
struct WordQuery {
    std::vector<std::string> words;
};

using SearchQuery = std::variant<ShortcutQuery, WordQuery>;

/// What was typed into a search field, read as a shortcut where it is one.
SearchQuery readQuery(std::string_view text);

} // namespace quillon
