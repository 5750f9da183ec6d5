#pragma once

#include <quillon/app/ports/launcher_key.h>

namespace quillon {

/// A desktop whose launcher no modifier opens alone.
class NoLauncherKey final : public LauncherKey {
  public:
    Modifiers modifier() const override { return {}; }
    Subscription onChanged(std::function<void()>) override { return {}; }
};

} // namespace quillon
