#include "stall_meter.h"

#include <QMetaObject>

#include <algorithm>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds pingInterval{1};

} // namespace

StallMeter::~StallMeter() {
    m_sender = {};
}

void StallMeter::start() {
    m_longest = {};
    if (m_sender.joinable())
        return;
    m_sender = std::jthread([this](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            if (m_answered.exchange(false))
                ping();
            std::this_thread::sleep_for(pingInterval);
        }
    });
}

void StallMeter::ping() {
    const auto sent = std::chrono::steady_clock::now();
    QMetaObject::invokeMethod(
        this,
        [this, sent] {
            m_longest = std::max(m_longest, std::chrono::steady_clock::now() - sent);
            m_answered = true;
        },
        Qt::QueuedConnection);
}

} // namespace quillon
