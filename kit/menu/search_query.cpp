#include "search_query.h"

#include <quillon/kit/base/unicode.h>
#include <quillon/kit/shortcut/special_key.h>

#include <algorithm>
#include <array>
#include <optional>
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

std::vector<std::string> splitAtWhitespace(std::string_view text) {
    std::vector<std::string> tokens;
    std::string token;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = unicode::firstScalarLength(text.substr(position));
        const std::string_view scalar = text.substr(position, length);
        position += length;
        if (!unicode::isWhitespace(scalar))
            token += scalar;
        else if (!token.empty())
            tokens.push_back(std::exchange(token, {}));
    }
    if (!token.empty())
        tokens.push_back(std::move(token));
    return tokens;
}

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

std::optional<ShortcutQuery> readShortcut(const std::vector<std::string>& tokens) {
    Modifiers modifiers;
    const std::string* keyToken = nullptr;
    for (const std::string& token : tokens) {
        if (const std::optional<Modifiers> modifier = modifierOf(token))
            modifiers.insert(*modifier);
        else if (!keyToken)
            keyToken = &token;
        else
            return std::nullopt;
    }
    if (!keyToken || modifiers.isEmpty())
        return std::nullopt;
    std::optional<std::string> keyText = keyTextOf(*keyToken);
    if (!keyText)
        return std::nullopt;
    return ShortcutQuery{modifiers, *std::move(keyText)};
}

} // namespace

SearchQuery readQuery(std::string_view text) {
    std::vector<std::string> tokens = splitAtWhitespace(unicode::toLower(text));
    if (std::optional<ShortcutQuery> shortcut = readShortcut(tokens))
        return *std::move(shortcut);
    return WordQuery{std::move(tokens)};
}

} // namespace quillon
