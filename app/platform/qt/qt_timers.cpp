#include "qt_timers.h"

#include <QTimer>

#include <chrono>
#include <memory>

namespace quillon {

namespace {

enum class Repeat { once, forever };

/// From here on a few per cent of delay are not noticed, and saved wake-ups are.
constexpr Seconds coarseFrom{0.2};

Subscription startTimer(Seconds interval, Repeat repeat, std::function<void()> callback) {
    auto timer = std::make_unique<QTimer>();
    timer->setInterval(std::chrono::round<std::chrono::milliseconds>(interval));
    timer->setTimerType(interval < coarseFrom ? Qt::PreciseTimer : Qt::CoarseTimer);
    timer->setSingleShot(repeat == Repeat::once);
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), std::move(callback));
    timer->start();
    // A callback may end its own timer, which must then outlive the call.
    return Subscription([timer = std::shared_ptr<QTimer>(timer.release(), [](QTimer* ended) {
                             ended->stop();
                             ended->deleteLater();
                         })]() mutable { timer.reset(); });
}

} // namespace

Subscription QtTimers::every(Seconds interval, std::function<void()> tick) {
    return startTimer(interval, Repeat::forever, std::move(tick));
}

Subscription QtTimers::after(Seconds delay, std::function<void()> done) {
    return startTimer(delay, Repeat::once, std::move(done));
}

} // namespace quillon
