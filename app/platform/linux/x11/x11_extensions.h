#pragma once

#include "x11_connection.h"

namespace quillon {

/// Asks the server for its extensions and tells it which versions this program speaks. Waits for it.
X11Extensions queryExtensions(xcb_connection_t* connection);

} // namespace quillon
