#pragma once

#include <quillon/app/ports/launcher_key.h>

namespace quillon {

/// A desktop whose launcher opens with what it is told; with nothing at first.
class FakeLauncherKey final : public LauncherKey {
  public:
    Modifiers modifier() const override { return opensLauncher; }

    Modifiers opensLauncher;
};

} // namespace quillon
