#pragma once

#include <quillon/app/platform/linux/keys/keymap.h>

#include <memory>
#include <string>

namespace quillon {

/// What the keys of the X server's keyboard give; nullptr when it does not tell. Asks over a connection of
/// its own to `display`, or to $DISPLAY when it is empty, and waits for the server without a limit: not on
/// the main thread.
std::shared_ptr<const Keymap> requestKeymap(const std::string& display);

} // namespace quillon
