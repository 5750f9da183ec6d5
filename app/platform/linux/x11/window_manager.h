#pragma once

#include "x11_connection.h"

#include <string>

namespace quillon {

/// The window that stands for a window manager which tells the active window; XCB_NONE when there is none.
xcb_window_t windowManagerThatTells(X11Connection& x11);

/// What that window manager calls itself; "" when it does not say.
std::string windowManagerName(X11Connection& x11, xcb_window_t manager);

} // namespace quillon
