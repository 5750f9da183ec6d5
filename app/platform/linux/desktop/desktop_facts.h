#pragma once

#include <quillon/app/platform/linux/session/session_bus.h>
#include <quillon/app/ports/diagnosis.h>
#include <quillon/app/ports/running_app.h>
#include <quillon/app/ports/watching.h>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// What was found of a Linux desktop.
struct DesktopFacts {
    BusState sessionBus = BusState::absent;
    bool accessibilityBus = false;
    std::optional<bool> accessibilityOn; ///< the desktop's switch; absent when it has none
    bool waylandSession = false;
    bool display = false;                      ///< an X server can be reached
    std::optional<std::string> inputExtension; ///< XInput's version, "2.2" or later; absent below that
    bool keyboardExtension = false;            ///< XKB
    bool keymap = false;                       ///< what the keys give can be read
    bool shapeExtension = false;
    std::optional<std::string> windowManager; ///< its name; absent when none tells the active window
    bool compositor = false;
    bool trayHost = false; ///< there is a tray
    /// The running instance's icon is in a tray that shows it; absent when it does not tell.
    std::optional<bool> inTray = {};
    /// The names of GTK 2 programs that have windows and are not on the accessibility bus.
    std::vector<std::string> silentGtk2Programs = {};
    std::optional<RunningApp> front;
    bool instanceRunning = false;
    std::optional<Watching> watching = {}; ///< of the running instance; absent when it does not tell
};

/// What these facts mean for the program, with a remedy for whatever is not well.
std::vector<Check> diagnose(const DesktopFacts& facts);

} // namespace quillon
