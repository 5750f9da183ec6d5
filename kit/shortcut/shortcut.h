#pragma once

#include "key.h"
#include "modifiers.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quillon {

/// The four attributes in which a menu item tells its key equivalent; each absent when the item lacks it.
struct AxKeyEquivalent {
    std::optional<std::string> character = {};
    std::optional<std::int64_t> modifiers = {};  ///< accessibility mask, see `Modifiers::fromAXMask`
    std::optional<std::int64_t> glyph = {};      ///< menu glyph number; 0 means none
    std::optional<std::int64_t> virtualKey = {}; ///< virtual key code; names special keys only

    bool operator==(const AxKeyEquivalent&) const = default;
};

/// A menu command's key equivalent.
struct Shortcut {
    Modifiers modifiers;
    Key key;

    /// The shortcut of a menu item: its character if it has exactly one usable one, else its glyph, else its
    /// virtual key; absent when none of them names a key. Without a mask the modifier is ⌘ alone.
    static std::optional<Shortcut> fromAX(const AxKeyEquivalent& equivalent);

    /// "⇧⌘S"
    std::string display() const;
    /// "Shift Command S"
    std::string spoken() const;

    bool operator==(const Shortcut&) const = default;
};

} // namespace quillon

template <>
struct std::hash<quillon::Shortcut> {
    std::size_t operator()(const quillon::Shortcut& shortcut) const noexcept;
};
