#pragma once

#include <xcb/xcb.h>

#include <compare>
#include <cstdint>
#include <optional>

namespace quillon {

/// A version that the server told of one of its extensions.
struct X11Version {
    std::uint32_t major = 0;
    std::uint32_t minor = 0;

    auto operator<=>(const X11Version&) const = default;
};

/// The extensions that this program uses; absent where the server lacks one or has it too old.
struct X11Extensions {
    std::optional<std::uint8_t> xinputOpcode; ///< only where raw events reach us under grabs (2.2)
    std::optional<X11Version> xinputVersion;  ///< whatever the server has
    std::optional<std::uint8_t> xkbFirstEvent;
    std::optional<std::uint8_t> xfixesFirstEvent;
    bool shape = false;
    bool clientPids = false; ///< XRes 1.2
};

/// Asks the server for its extensions and tells it which versions this program speaks. Waits for it.
X11Extensions queryExtensions(xcb_connection_t* connection);

} // namespace quillon
