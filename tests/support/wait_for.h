#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <functional>

namespace quillon {

/// Handles events until `condition` holds; false when it does not within ten seconds. Looks after every event
/// and, for conditions that change without one, a hundred times a second.
inline bool waitFor(const std::function<bool()>& condition) {
    constexpr std::chrono::seconds limit{10};
    constexpr std::chrono::milliseconds interval{10};
    const QDeadlineTimer deadline(limit);
    QTimer look;
    look.start(interval);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace quillon
