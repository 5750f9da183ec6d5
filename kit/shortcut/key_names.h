#pragma once

#include "shortcut.h"

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// What one key is called.
struct KeyName {
    std::string shown;               ///< as it is printed on the key: "Ctrl", "←"
    std::vector<std::string> others; ///< what people also call it: "Windows"

    /// From the names in one text, the shown one first: "Super|Windows".
    static KeyName of(std::string_view names);

    /// The first name that is a word; the shown one where none is.
    const std::string& spoken() const;

    bool operator==(const KeyName&) const = default;
};

/// What the keys of a PC keyboard are called in one language, for those who read names rather than symbols.
/// Letters, digits and function keys are called the same everywhere and are not in it.
class KeyNames {
  public:
    /// Gives the names of a key in another language, in the same form ("Super|Windows"). What it is given is
    /// a literal.
    using Translate = std::function<std::string(const char* english)>;

    static const KeyNames& english();
    static KeyNames translated(const Translate& translate);
    /// Every text that `translated` asks for.
    static std::vector<const char*> englishTexts();

    /// Of one of the four modifiers.
    const KeyName& nameOf(Modifiers modifier) const;
    /// Back tab is called as tab is: its shift is a key of its own.
    KeyName nameOf(SpecialKey key) const;
    /// Of a key that has a character; of a punctuation mark with the word for it.
    KeyName nameOf(const std::string& character) const;
    KeyName nameOf(const Key& key) const;

    /// The characters that have a word.
    const std::map<std::string, KeyName, std::less<>>& punctuation() const { return m_punctuation; }

    bool operator==(const KeyNames&) const = default;

  private:
    KeyNames() = default;

    std::array<KeyName, 4> m_modifiers; ///< in the order in which they are shown
    std::map<SpecialKey, KeyName> m_special;
    std::map<std::string, KeyName, std::less<>> m_punctuation;
};

/// The modifiers one by one, in the order in which they are shown: ⌃⌥⇧⌘, by their names Ctrl, Alt, Shift and
/// Super.
inline constexpr std::array modifiersInOrder{
    Modifiers::control, Modifiers::option, Modifiers::shift, Modifiers::command};

/// What each key cap of the shortcut shows: one per modifier, then the key. Null `names` for symbols.
std::vector<std::string> capsOf(const Shortcut& shortcut, const KeyNames* names);

/// The shortcut as it is shown: "⌃⇧S", or with names "Ctrl Shift S".
std::string displayWith(const Shortcut& shortcut, const KeyNames* names);

/// The shortcut as it is read aloud: "Control Shift Comma", or with names "Ctrl Shift Comma".
std::string spokenWith(const Shortcut& shortcut, const KeyNames* names);

} // namespace quillon
