#include "hold_detector.h"

#include <utility>

namespace quillon {

std::optional<HoldDetector::Event> HoldDetector::modifiersChanged(Modifiers held, Instant at) {
    if (held == m_trigger) {
        if (!m_pressedAt) {
            m_pressedAt = at;
            m_cancelled = false;
        }
        return std::nullopt;
    }
    if (!held.isEmpty() && held.contains(m_trigger)) {
        if (!m_showing)
            m_cancelled = true;
        return std::nullopt;
    }
    m_pressedAt.reset();
    m_cancelled = false;
    return std::exchange(m_showing, false) ? std::optional(Event::hide) : std::nullopt;
}

void HoldDetector::otherInput() {
    if (m_pressedAt && !m_showing)
        m_cancelled = true;
}

std::optional<HoldDetector::Event> HoldDetector::tick(Instant now) {
    if (!m_pressedAt || m_cancelled || m_showing)
        return std::nullopt;
    if (secondsBetween(*m_pressedAt, now) < m_delay)
        return std::nullopt;
    m_showing = true;
    return Event::show;
}

} // namespace quillon
