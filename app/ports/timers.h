#pragma once

#include <quillon/kit/base/subscription.h>

#include <quillon/kit/base/instant.h>

#include <functional>

namespace quillon {

/// Callbacks on the main thread at a later time.
class Timers {
  public:
    virtual ~Timers() = default;

    /// Calls `tick` every `interval` until the handle ends.
    virtual Subscription every(Seconds interval, std::function<void()> tick) = 0;
    /// Calls `done` once after `delay`, unless the handle ended before.
    virtual Subscription after(Seconds delay, std::function<void()> done) = 0;
};

} // namespace quillon
