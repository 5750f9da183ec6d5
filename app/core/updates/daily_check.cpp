#include "daily_check.h"

#include <algorithm>
#include <utility>

namespace quillon {

Seconds waitForLook(std::optional<Instant> lastCheck, Instant now) {
    if (!lastCheck || *lastCheck > now)
        return Seconds(0);
    return std::max(Seconds(0), DailyCheck::interval - secondsBetween(*lastCheck, now));
}

DailyCheck::DailyCheck(Needs needs, ReleaseLook::Needs look, const ReleaseSource& source, double jitter)
    : m_needs(needs), m_hasFeed(!source.feedAddress.empty()), m_firstWait(earliest * (1 + 2 * jitter)),
      m_look(std::move(look), source) {}

void DailyCheck::start() {
    if (m_hasFeed)
        wait(m_firstWait);
}

void DailyCheck::wait(Seconds atLeast) {
    const Seconds untilDue = waitForLook(m_needs.memory.lastCheck(), m_needs.clock.now());
    if (untilDue <= atLeast) {
        m_timer = m_needs.timers.after(atLeast, [this] { look(); });
        return;
    }
    m_timer = m_needs.timers.after(std::min(untilDue, longestWait), [this] { wait(Seconds(0)); });
}

void DailyCheck::look() {
    m_look.look([this](const LookResult& result) { looked(result); });
}

void DailyCheck::looked(const LookResult& result) {
    const auto* const release = std::get_if<Release>(&result);
    const bool isKnown = release || std::get<UpdateNotice>(result) == UpdateNotice::upToDate;
    if (isKnown)
        m_needs.memory.setLastCheck(m_needs.clock.now());
    wait(isKnown ? Seconds(0) : retry);
    if (release && release->shownVersion != m_needs.memory.dismissed())
        m_needs.notices.offer(*release, Occasion::unasked);
}

} // namespace quillon
