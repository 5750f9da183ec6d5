#pragma once

#include "read_limits.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon::atspi {

/// An application that is on the accessibility bus.
struct SharingApp {
    std::string busName;        ///< its connection
    std::int64_t pid = 0;       ///< 0 when the bus does not tell
    std::string name;           ///< as it calls itself; "" when it does not answer
    std::string toolkit;        ///< "gtk", "Qt", "GAIL"; "" when it does not answer
    std::string toolkitVersion; ///< "" when it does not answer
};

/// The applications that are on the accessibility bus, in the order in which they came there; absent when the
/// bus cannot be reached. Waits within the limits, so never to be called on the main thread of a program with
/// windows.
std::optional<std::vector<SharingApp>> sharingApps(const ReadLimits& limits = {});

} // namespace quillon::atspi
