#pragma once

#include "x11_connection.h"

#include <quillon/app/ports/app_icons.h>

#include <cstdint>
#include <optional>
#include <span>

namespace quillon {

/// One picture of the `_NET_WM_ICON` property: a row of pictures, each its width, its height and its pixels.
/// The smallest of those that are at least 64 pixels wide, else the largest; none above 256. Absent when the
/// numbers do not make sense.
std::optional<IconPixels> iconFrom(std::span<const std::uint32_t> property);

/// The icon that a window shows; absent when it has none.
std::optional<IconPixels> windowIcon(X11Connection& x11, xcb_window_t window);

} // namespace quillon
