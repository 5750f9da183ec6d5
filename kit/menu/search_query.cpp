#include "search_query.h"

#include "query_tokens.h"

#include <quillon/kit/base/unicode.h>
#include <quillon/kit/shortcut/special_key.h>

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

namespace quillon {

namespace {

struct ModifierToken {
    std::string_view token;
    Modifiers modifier;
};

constexpr std::array<ModifierToken, 12> modifierTokens{{
    {"cmd", Modifiers::command},
    {"command", Modifiers::command},
    {"⌘", Modifiers::command},
    {"shift", Modifiers::shift},
    {"⇧", Modifiers::shift},
    {"opt", Modifiers::option},
    {"option", Modifiers::option},
    {"alt", Modifiers::option},
    {"⌥", Modifiers::option},
    {"ctrl", Modifiers::control},
    {"control", Modifiers::control},
    {"⌃", Modifiers::control},
}};

std::optional<Modifiers> modifierOf(std::string_view token) {
    const auto row = std::ranges::find(modifierTokens, token, &ModifierToken::token);
    return row == modifierTokens.end() ? std::nullopt : std::optional(row->modifier);
}

/// The lower-cased glyph of the key that a token names; absent when it names none.
std::optional<std::string> keyTextOf(const std::string& token) {
    if (unicode::isOneCharacter(token))
        return token;
    for (const SpecialKey key : allSpecialKeys) {
        if (token == unicode::toLower(name(key)) || token == unicode::toLower(rawValue(key)))
            return unicode::toLower(glyph(key));
    }
    return std::nullopt;
}

/// What one piece of a query says: words of the query, and what they mean as part of a shortcut.
QueryTerm termAt(std::span<const std::string> tokens, const KeyWords& words) {
    const KeyWords::Phrase* const phrase = words.longestAt(tokens);
    return phrase ? QueryTerm{phrase->words, phrase->meaning} : QueryTerm{{tokens.front()}, {}};
}

std::vector<QueryTerm> termsOf(std::span<const std::string> tokens, const KeyWords& words) {
    std::vector<QueryTerm> terms;
    while (!tokens.empty()) {
        terms.push_back(termAt(tokens, words));
        tokens = tokens.subspan(terms.back().words.size());
    }
    return terms;
}

/// With what every search understands of a token.
KeyMeaning fullMeaning(const QueryTerm& term) {
    KeyMeaning meaning = term.meaning;
    if (term.words.size() > 1)
        return meaning;
    if (const std::optional<Modifiers> modifier = modifierOf(term.words.front()))
        meaning.modifiers.insert(*modifier);
    std::optional<std::string> keyText = keyTextOf(term.words.front());
    if (keyText && std::ranges::find(meaning.keyTexts, *keyText) == meaning.keyTexts.end())
        meaning.keyTexts.push_back(*std::move(keyText));
    return meaning;
}

/// Back tab is shown by the names of shift and tab: who searches for these finds it.
void addBackTab(ShortcutQuery& query) {
    const std::string tab = unicode::toLower(glyph(SpecialKey::tab));
    const std::string backTab = unicode::toLower(glyph(SpecialKey::backTab));
    const std::vector<ShortcutPattern> patterns = query.patterns;
    for (const ShortcutPattern& pattern : patterns) {
        if (pattern.keyText != tab || !pattern.modifiers.contains(Modifiers::shift))
            continue;
        query.patterns.push_back({pattern.modifiers, backTab});
        query.patterns.push_back({pattern.modifiers.subtracting(Modifiers::shift), backTab});
    }
}

/// Absent unless the terms are modifiers and exactly one key.
std::optional<ShortcutQuery> readShortcut(const std::vector<QueryTerm>& terms) {
    Modifiers modifiers;
    std::optional<KeyMeaning> key;
    for (const QueryTerm& term : terms) {
        KeyMeaning meaning = fullMeaning(term);
        if (!meaning.modifiers.isEmpty())
            modifiers.insert(meaning.modifiers);
        else if (!key)
            key = std::move(meaning);
        else
            return std::nullopt;
    }
    if (!key || key->keyTexts.empty() || modifiers.isEmpty())
        return std::nullopt;
    ShortcutQuery query;
    for (std::string& keyText : key->keyTexts)
        query.patterns.push_back({modifiers, std::move(keyText)});
    return query;
}

/// "ctrl+shift+s" and "ctrl + shift + s" in their parts. A plus sign at the end is a key.
std::vector<std::string> splitAtPlus(const std::vector<std::string>& tokens) {
    std::vector<std::string> parts;
    for (const std::string& token : tokens) {
        std::string_view rest = token;
        for (std::size_t plus = rest.find('+', 1); plus < rest.size() - 1; plus = rest.find('+', 1)) {
            parts.emplace_back(rest.substr(0, plus));
            rest.remove_prefix(plus + 1);
        }
        const bool isLast = &token == &tokens.back();
        if (rest != "+" || isLast || rest.size() != token.size())
            parts.emplace_back(rest);
    }
    return parts;
}

/// Words that are shown on the keys as well.
std::optional<ShortcutQuery> readNames(const std::vector<std::string>& tokens, const KeyWords& words) {
    std::optional<ShortcutQuery> shortcut = readShortcut(termsOf(tokens, words));
    if (!shortcut)
        shortcut = readShortcut(termsOf(splitAtPlus(tokens), words));
    if (shortcut)
        addBackTab(*shortcut);
    return shortcut;
}

} // namespace

SearchQuery readQuery(std::string_view text, const KeyWords& words) {
    const std::vector<std::string> tokens = splitAtWhitespace(unicode::toLower(text));
    std::vector<QueryTerm> terms = termsOf(tokens, words);
    std::optional<ShortcutQuery> shortcut = words.isEmpty() ? readShortcut(terms) : readNames(tokens, words);
    if (shortcut)
        return *std::move(shortcut);
    return WordQuery{std::move(terms)};
}

} // namespace quillon
