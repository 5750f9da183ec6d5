#pragma once

#include <quillon/kit/shortcut/shortcut.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// One menu item as the desktop's accessibility interface told it, before any rule is applied.
struct RawMenuItem {
    std::string title = {};
    std::optional<std::string> cmdChar = {};
    std::optional<std::int64_t> cmdModifiers = {};  ///< accessibility mask, see `Modifiers::fromAXMask`
    std::optional<std::int64_t> cmdGlyph = {};      ///< menu glyph number; 0 means none
    std::optional<std::int64_t> cmdVirtualKey = {}; ///< virtual key code; names special keys only
    bool enabled = true;
    std::vector<RawMenuItem> children = {}; ///< the items of its submenu, in menu order; empty for a leaf

    /// The shortcut that the four key-equivalent fields stand for; absent when they stand for none.
    std::optional<Shortcut> shortcut() const {
        return Shortcut::fromAX({cmdChar, cmdModifiers, cmdGlyph, cmdVirtualKey});
    }

    bool operator==(const RawMenuItem&) const = default;
};

} // namespace quillon

template <>
struct std::hash<quillon::RawMenuItem> {
    std::size_t operator()(const quillon::RawMenuItem& item) const noexcept;
};
