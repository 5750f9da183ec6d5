#pragma once

#include "shortcut.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quillon {

/// One key press as it was observed.
struct KeyStroke {
    std::string characters = {}; ///< what the press produced; may be empty
    std::int64_t keyCode = 0;    ///< macOS virtual key code
    Modifiers modifiers = {};    ///< what was held

    /// Whether this press is the use of `shortcut`. Letters compare case-blind but must agree on ⇧; a shifted
    /// symbol counts by what it produced or, where both have ⇧, by the unshifted key of an ANSI keyboard.
    bool matches(const Shortcut& shortcut) const;

    bool operator==(const KeyStroke&) const = default;
};

} // namespace quillon

template <>
struct std::hash<quillon::KeyStroke> {
    std::size_t operator()(const quillon::KeyStroke& stroke) const noexcept;
};
