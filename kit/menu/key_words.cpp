#include "key_words.h"

#include "query_tokens.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

void unite(KeyMeaning& meaning, const KeyMeaning& other) {
    meaning.modifiers.insert(other.modifiers);
    for (const std::string& text : other.keyTexts) {
        if (std::ranges::find(meaning.keyTexts, text) == meaning.keyTexts.end())
            meaning.keyTexts.push_back(text);
    }
}

bool beginsWith(std::span<const std::string> words, std::span<const std::string> beginning) {
    return words.size() >= beginning.size() && std::ranges::equal(words.first(beginning.size()), beginning);
}

} // namespace

KeyWords::KeyWords(std::span<const KeyNames> languages) {
    if (!languages.empty())
        m_shown.push_back(languages.front());
    for (const KeyNames& names : languages)
        addAll(names);
    std::ranges::stable_sort(
        m_phrases, std::ranges::greater(), [](const Phrase& phrase) { return phrase.words.size(); });
}

void KeyWords::addAll(const KeyNames& names) {
    for (const Modifiers modifier : modifiersInOrder)
        add(names.nameOf(modifier), {modifier, {}});
    for (const SpecialKey key : allSpecialKeys) {
        if (key != SpecialKey::backTab)
            add(names.nameOf(key), {{}, {unicode::toLower(glyph(key))}});
    }
    for (const auto& [character, name] : names.punctuation())
        add(name, {{}, {character}});
}

void KeyWords::add(const KeyName& name, const KeyMeaning& meaning) {
    add(name.shown, meaning);
    for (const std::string& other : name.others)
        add(other, meaning);
}

void KeyWords::add(const std::string& text, const KeyMeaning& meaning) {
    std::vector<std::string> words = splitAtWhitespace(unicode::toLower(text));
    if (words.empty())
        return;
    const auto known = std::ranges::find(m_phrases, words, &Phrase::words);
    if (known == m_phrases.end())
        m_phrases.push_back({std::move(words), meaning});
    else
        unite(known->meaning, meaning);
}

const KeyWords::Phrase* KeyWords::longestAt(std::span<const std::string> words) const {
    const auto found = std::ranges::find_if(
        m_phrases, [words](const Phrase& phrase) { return beginsWith(words, phrase.words); });
    return found == m_phrases.end() ? nullptr : &*found;
}

std::string KeyWords::termsOf(const Shortcut& shortcut) const {
    return m_shown.empty() ? std::string() : displayWith(shortcut, &m_shown.front());
}

} // namespace quillon
