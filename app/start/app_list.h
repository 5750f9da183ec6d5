#pragma once

#include <quillon/app/platform/linux/atspi/running_apps.h>
#include <quillon/app/ports/running_app.h>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// A running application that can be asked for its menus.
struct ListedApp {
    RunningApp app;
    std::string toolkit; ///< with its version: "gtk 3.24.38"; "" when unknown
};

/// The running applications that are on the accessibility bus, this program left out; one process that is
/// several applications to its user (an office suite) is listed once for each. Absent when the bus cannot be
/// reached. Waits for other processes within bounds.
std::optional<std::vector<ListedApp>> listApps();

/// The application of the active window; absent when there is none or no display tells. Waits likewise.
std::optional<RunningApp> frontApp();

} // namespace quillon
