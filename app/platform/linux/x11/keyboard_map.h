#pragma once

#include "modifier_table.h"
#include "x11_connection.h"

#include <bitset>
#include <optional>

namespace quillon {

/// What the server's keyboard says about its modifier keys.
struct KeyboardMap {
    ModifierTable modifiers;
    std::bitset<256> isModifierKey; ///< by X key code

    /// Asks the server; absent when it does not answer in time.
    static std::optional<KeyboardMap> ask(X11Connection& x11);
};

} // namespace quillon
