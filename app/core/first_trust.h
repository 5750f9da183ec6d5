#pragma once

#include "app_model.h"

#include <quillon/app/ports/timers.h>
#include <quillon/kit/base/subscription.h>

#include <functional>

namespace quillon {

/// Waits for the desktop's first word on whether menus may be read. At the start of the program it may not
/// have answered yet, and what it answers a moment later should not flash by.
class FirstTrust {
  public:
    /// Both outlive it.
    FirstTrust(AppModel& model, Timers& timers) : m_model(model), m_timers(timers) {}

    /// Calls `then` once: when menus may be read, or when `patience` is over. Forgets what it was to call
    /// before.
    void wait(Seconds patience, std::function<void()> then);
    bool isWaiting() const { return static_cast<bool>(m_change); }
    /// Nobody waits any more.
    void stop();

  private:
    AppModel& m_model;
    Timers& m_timers;
    Subscription m_patience;
    Subscription m_change;
};

} // namespace quillon
