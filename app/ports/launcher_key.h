#pragma once

#include <quillon/kit/shortcut/modifiers.h>

namespace quillon {

/// What the desktop itself does when a modifier is pressed and let go alone.
class LauncherKey {
  public:
    virtual ~LauncherKey() = default;

    /// The modifier that opens the desktop's launcher or overview by itself; none where none does, or where
    /// nobody can tell. Never waits.
    virtual Modifiers modifier() const = 0;
};

} // namespace quillon
