#pragma once

#include "fake_clock.h"

#include <quillon/app/ports/timers.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>

namespace quillon {

/// Timers that fire only in `advance`, in the order in which they fall due.
class FakeTimers final : public Timers {
  public:
    explicit FakeTimers(FakeClock& clock) : m_clock(clock) {}

    Subscription every(Seconds interval, std::function<void()> tick) override;
    Subscription after(Seconds delay, std::function<void()> done) override;

    /// Lets time pass and fires what falls due meanwhile, each with the clock standing at its time; those of
    /// one time in the order in which they were started. Timers that are started by others fire too.
    void advance(Seconds length);

    /// How many timers are running.
    std::size_t running() const { return m_timers->size(); }
    /// How many repeating timers with this interval are running.
    std::size_t running(Seconds interval) const;

  private:
    struct Timer {
        Instant due;
        Seconds interval; ///< 0 for one that fires once
        std::shared_ptr<const std::function<void()>> callback;
    };
    using Table = std::map<std::uint64_t, Timer>; ///< by the order in which they were started

    Subscription start(Timer timer);
    Table::iterator earliest() const;
    void fire(Table::iterator timer);

    FakeClock& m_clock;
    std::uint64_t m_next = 0;
    std::shared_ptr<Table> m_timers = std::make_shared<Table>();
};

} // namespace quillon
