#pragma once

#include <xcb/xcb.h>

namespace quillon {

/// The toolkit's own connection to the X server; null where it draws without one.
xcb_connection_t* toolkitConnection();

} // namespace quillon
