#pragma once

#include <quillon/app/ports/timers.h>

namespace quillon {

/// Timers of the Qt event loop.
class QtTimers final : public Timers {
  public:
    Subscription every(Seconds interval, std::function<void()> tick) override;
    Subscription after(Seconds delay, std::function<void()> done) override;
};

} // namespace quillon
