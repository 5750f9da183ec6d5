#pragma once

#include <quillon/kit/base/subscription.h>

#include <functional>
#include <string>
#include <vector>

namespace quillon {

/// Applications that have windows and could share their menus, but began before this was allowed: they have
/// to be restarted to be read.
class SilentApps {
  public:
    virtual ~SilentApps() = default;

    /// Looks for them off the main thread. `found` is called once on the main thread with their names, each
    /// once, by name; with none where there are none or nobody can tell. Not called any more once the handle
    /// is gone.
    virtual Subscription look(std::function<void(std::vector<std::string> names)> found) = 0;
};

} // namespace quillon
