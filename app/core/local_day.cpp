#include "local_day.h"

#include <QDateTime>

#include <chrono>

namespace quillon {

Day localDay(Instant instant) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(instant);
    const QDate date = QDateTime::fromMSecsSinceEpoch(milliseconds.time_since_epoch().count()).date();
    constexpr qint64 julianDayOfEpoch = 2440588;
    return Day(std::chrono::days(date.toJulianDay() - julianDayOfEpoch));
}

} // namespace quillon
