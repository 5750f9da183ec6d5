#pragma once

#include "running_app.h"
#include <quillon/kit/base/subscription.h>

#include <functional>
#include <optional>

namespace quillon {

/// The application that the user is working in.
class FrontApplication {
  public:
    virtual ~FrontApplication() = default;

    /// The application of the active window. Absent when no window is active or the desktop does not tell.
    /// May be this program.
    virtual std::optional<RunningApp> current() const = 0;

    /// Called on the main thread whenever another window becomes active, of the same application or not.
    virtual Subscription onActivated(std::function<void(const RunningApp&)> callback) = 0;
};

} // namespace quillon
