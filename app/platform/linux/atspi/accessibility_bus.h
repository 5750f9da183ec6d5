#pragma once

#include "read_limits.h"

#include <chrono>
#include <optional>
#include <stop_token>
#include <string>

namespace quillon::atspi {

/// What of the way to the accessibility bus works.
struct AccessibilityBusState {
    bool hasSessionBus = false;       ///< the session bus answers
    bool hasAccessibilityBus = false; ///< `org.a11y.Bus` names the accessibility bus, and that answers
    /// `IsEnabled` of `org.a11y.Status`; absent when this desktop has no such property.
    std::optional<bool> isEnabled;
};

/// The address of the accessibility bus, from `org.a11y.Bus` on the session bus, which starts it where it
/// does not run yet. Waits within the limits, at most until `deadline`; absent when there is none.
std::optional<std::string> accessibilityBusAddress(
    const ReadLimits& limits, std::chrono::steady_clock::time_point deadline, const std::stop_token& stop);

/// Tries the whole way. Waits within the limits, so never to be called on the main thread of a program with
/// windows; never fails.
AccessibilityBusState probeAccessibilityBus(const ReadLimits& limits = {});

} // namespace quillon::atspi
