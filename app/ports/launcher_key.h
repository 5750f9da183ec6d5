#pragma once

#include <quillon/kit/base/subscription.h>
#include <quillon/kit/shortcut/modifiers.h>

#include <functional>

namespace quillon {

/// What the desktop itself does when a modifier is pressed and let go alone.
class LauncherKey {
  public:
    virtual ~LauncherKey() = default;

    /// The modifier that opens the desktop's launcher or overview by itself; none where none does, or where
    /// nobody can tell yet. Never waits.
    virtual Modifiers modifier() const = 0;
    /// Looks for it once more, and calls back when the answer became another, while the handle lives. Not
    /// called before this returned.
    virtual Subscription onChanged(std::function<void()> callback) = 0;
};

} // namespace quillon
