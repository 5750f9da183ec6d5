#include "stall_meter.h"

#include <QAbstractEventDispatcher>

#include <algorithm>

namespace quillon {

void StallMeter::start() {
    m_longest = {};
    m_awakeSince.reset();
    if (m_connected)
        return;
    const auto* dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &StallMeter::woke);
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &StallMeter::goesToSleep);
    m_connected = true;
}

void StallMeter::woke() {
    m_awakeSince = std::chrono::steady_clock::now();
}

void StallMeter::goesToSleep() {
    if (m_awakeSince)
        m_longest = std::max(m_longest, std::chrono::steady_clock::now() - *m_awakeSince);
    m_awakeSince.reset();
}

} // namespace quillon
