#pragma once

#include <quillon/app/ports/front_application.h>

namespace quillon {

/// A desktop that does not tell which window is active.
class NoFrontApplication final : public FrontApplication {
  public:
    std::optional<RunningApp> current() const override { return std::nullopt; }
    Subscription onActivated(std::function<void(const RunningApp&)>) override { return {}; }
};

} // namespace quillon
