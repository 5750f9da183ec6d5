#pragma once

#include "special_key.h"

#include <functional>
#include <string>
#include <variant>

namespace quillon {

/// The key of a shortcut: a printable character (upper-case when it comes from a menu) or a special key.
class Key {
  public:
    static Key character(std::string character) { return Key(std::move(character)); }
    static Key special(SpecialKey key) { return Key(key); }

    /// The character, or nullptr for a special key.
    const std::string* asCharacter() const { return std::get_if<std::string>(&m_value); }
    /// The special key, or nullptr for a character.
    const SpecialKey* asSpecial() const { return std::get_if<SpecialKey>(&m_value); }

    /// What a key cap shows: the character itself, or the special key's glyph.
    std::string_view glyph() const;
    /// What is read aloud: "S", "Comma", "Return".
    std::string_view name() const;

    bool operator==(const Key&) const = default;

  private:
    explicit Key(std::string character) : m_value(std::move(character)) {}
    explicit Key(SpecialKey key) : m_value(key) {}

    std::variant<std::string, SpecialKey> m_value;
};

} // namespace quillon

template <>
struct std::hash<quillon::Key> {
    std::size_t operator()(const quillon::Key& key) const noexcept;
};
