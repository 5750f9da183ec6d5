#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <functional>

namespace quillon {

/// Handles events until `condition` holds; false when it does not within ten seconds.
inline bool waitFor(const std::function<bool()>& condition) {
    constexpr std::chrono::seconds limit{10};
    const QDeadlineTimer deadline(limit);
    QTimer wake;
    wake.setSingleShot(true);
    wake.start(limit);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace quillon
