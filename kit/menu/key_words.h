#pragma once

#include <quillon/kit/shortcut/key_names.h>

#include <span>
#include <string>
#include <vector>

namespace quillon {

/// What some words of a search say of a shortcut. Words that mean several keys ("Enter") mean any of them.
struct KeyMeaning {
    Modifiers modifiers;               ///< empty where they mean a key
    std::vector<std::string> keyTexts; ///< lower-cased glyphs of keys

    bool isNone() const { return modifiers.isEmpty() && keyTexts.empty(); }
};

/// The words for keys that a search understands besides those that every search does ("cmd", "⇧", "f5").
class KeyWords {
  public:
    /// None.
    KeyWords() = default;
    /// All names in these languages, the first of which is the one that shortcuts are shown in.
    explicit KeyWords(std::span<const KeyNames> languages);

    bool isEmpty() const { return m_phrases.empty(); }

    struct Phrase {
        std::vector<std::string> words; ///< lower-cased
        KeyMeaning meaning;
    };
    /// The longest phrase that lower-cased `words` begin with; null when they begin with none.
    const Phrase* longestAt(std::span<const std::string> words) const;

    /// The shortcut by the names that it is shown with; "" where there are none.
    std::string termsOf(const Shortcut& shortcut) const;

  private:
    void add(const KeyName& name, const KeyMeaning& meaning);
    void add(const std::string& words, const KeyMeaning& meaning);
    void addAll(const KeyNames& names);

    std::vector<KeyNames> m_shown; ///< one at most
    std::vector<Phrase> m_phrases; ///< those of most words first
};

} // namespace quillon
