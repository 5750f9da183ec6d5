#pragma once

#include "accessibility_calls.h"
#include "application_search.h"
#include "window_search.h"

#include <quillon/app/ports/running_app.h>

#include <optional>
#include <vector>

namespace quillon::atspi {

/// An application's windows on the accessibility bus, those first whose menus its user means (see
/// `sortBestFirst`). An application in a sandbox is known by its windows' titles alone. Waits; absent when it
/// is not on the bus.
std::optional<std::vector<BusWindow>> windowsOfApp(
    AccessibilityCalls& calls, const std::vector<BusApplication>& applications, const RunningApp& app);

} // namespace quillon::atspi
