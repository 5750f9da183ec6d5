#pragma once

#include <quillon/app/ports/clock.h>

namespace quillon {

/// A clock that stands still until it is moved by hand. Both of its times begin at 2001-01-01 00:00:00 UTC.
class FakeClock final : public Clock {
  public:
    Instant now() const override { return m_now; }
    Instant steadyNow() const override { return m_steadyNow; }

    /// Lets time pass, for both of the times. Fires no timer: see `FakeTimers::advance`.
    void advance(Seconds length) {
        m_now = after(m_now, length);
        m_steadyNow = after(m_steadyNow, length);
    }
    /// Sets the time of day alone, as its user might.
    void setNow(Instant now) { m_now = now; }

  private:
    static constexpr Instant start = std::chrono::sys_days{std::chrono::year{2001} / 1 / 1};
    Instant m_now = start;
    Instant m_steadyNow = start;
};

} // namespace quillon
