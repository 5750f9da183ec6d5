#include "fake_timers.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

/// A repeating timer must move on, or `advance` would never end.
constexpr Seconds shortestInterval{1e-6};

} // namespace

Subscription FakeTimers::every(Seconds interval, std::function<void()> tick) {
    const Seconds length = std::max(interval, shortestInterval);
    return start(
        {quillon::after(m_clock.steadyNow(), length), length,
         std::make_shared<const std::function<void()>>(std::move(tick))});
}

Subscription FakeTimers::after(Seconds delay, std::function<void()> done) {
    return start(
        {quillon::after(m_clock.steadyNow(), std::max(delay, Seconds(0))), Seconds(0),
         std::make_shared<const std::function<void()>>(std::move(done))});
}

Subscription FakeTimers::start(Timer timer) {
    const std::uint64_t key = m_next++;
    m_timers->emplace(key, std::move(timer));
    return Subscription([table = std::weak_ptr<Table>(m_timers), key] {
        if (const auto alive = table.lock())
            alive->erase(key);
    });
}

std::size_t FakeTimers::running(Seconds interval) const {
    return static_cast<std::size_t>(std::ranges::count_if(
        *m_timers, [interval](const auto& entry) { return entry.second.interval == interval; }));
}

FakeTimers::Table::iterator FakeTimers::earliest() const {
    return std::ranges::min_element(*m_timers, {}, [](const auto& entry) { return entry.second.due; });
}

void FakeTimers::fire(Table::iterator timer) {
    const auto callback = timer->second.callback;
    if (timer->second.interval > Seconds(0))
        timer->second.due = quillon::after(timer->second.due, timer->second.interval);
    else
        m_timers->erase(timer);
    (*callback)();
}

void FakeTimers::advance(Seconds length) {
    const Instant end = quillon::after(m_clock.steadyNow(), length);
    for (auto next = earliest(); next != m_timers->end() && next->second.due <= end; next = earliest()) {
        const Seconds wait = secondsBetween(m_clock.steadyNow(), next->second.due);
        m_clock.advance(std::max(wait, Seconds(0)));
        fire(next);
    }
    m_clock.advance(std::max(secondsBetween(m_clock.steadyNow(), end), Seconds(0)));
}

} // namespace quillon
