#pragma once

#include "accessibility_calls.h"
#include "object_ref.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quillon::atspi {

/// An application on the accessibility bus. One process may have several connections, each an application.
struct BusApplication {
    ObjectRef root;       ///< its object whose children are its windows
    std::int64_t pid = 0; ///< the process behind the connection; 0 when the bus does not tell
};

/// Every application on the accessibility bus, in the order in which they came. Waits; absent when the
/// registry does not answer.
std::optional<std::vector<BusApplication>> applicationsOnBus(AccessibilityCalls& calls);

/// Whether a process is the proxy through which a sandboxed application talks to the bus: the bus knows the
/// proxy's number, not the application's.
bool isSandboxProxy(std::int64_t pid);

} // namespace quillon::atspi
