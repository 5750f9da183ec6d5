#include "local_day.h"

#include <QDateTime>

#include <chrono>

namespace quillon {

namespace {

constexpr qint64 julianDayOfEpoch = 2440588;

} // namespace

Day localDay(Instant instant) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(instant);
    const QDate date = QDateTime::fromMSecsSinceEpoch(milliseconds.time_since_epoch().count()).date();
    return Day(std::chrono::days(date.toJulianDay() - julianDayOfEpoch));
}

QDate dateOf(Day day) {
    return QDate::fromJulianDay(day.time_since_epoch().count() + julianDayOfEpoch);
}

} // namespace quillon
