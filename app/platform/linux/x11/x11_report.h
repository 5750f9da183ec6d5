#pragma once

#include "x11_connection.h"

#include <optional>
#include <string>

namespace quillon {

/// What an X server and the programs around it offer, for a person to read.
struct X11Report {
    bool display = false;             ///< a server could be reached; nothing else is known without
    std::optional<X11Version> xinput; ///< whatever version the server has
    bool rawInput = false;            ///< XInput is new enough for input that other clients have grabbed
    bool xkb = false;
    bool keymap = false; ///< the keyboard's map can be read
    bool shape = false;
    bool clientPids = false;                  ///< XRes tells the processes of windows
    bool compositor = false;                  ///< translucent windows are blended
    bool tray = false;                        ///< a tray for icons of the old kind (XEmbed)
    std::optional<std::string> windowManager; ///< its name; absent when none tells the active window

    bool operator==(const X11Report&) const = default;
};

/// Looks at `display`, or at $DISPLAY when it is empty. Waits for the server, so only for commands that have
/// nothing else to do.
X11Report x11Report(const std::string& display = {});

} // namespace quillon
