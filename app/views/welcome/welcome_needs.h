#pragma once

#include <quillon/app/ports/launcher_key.h>
#include <quillon/app/ports/silent_apps.h>
#include <quillon/app/ports/timers.h>
#include <quillon/app/ports/tray.h>

namespace quillon {

/// What the welcome asks the desktop about.
struct WelcomeNeeds {
    Timers& timers;
    SilentApps& silentApps;
    LauncherKey& launcherKey;
    Tray& tray;
};

} // namespace quillon
