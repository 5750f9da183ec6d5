#pragma once

#include <quillon/kit/base/instant.h>
#include <quillon/kit/records/weeks.h>

#include <QDate>

namespace quillon {

/// The day that the instant lies in where the user is now.
Day localDay(Instant instant);

/// The same day as the toolkit writes it.
QDate dateOf(Day day);

} // namespace quillon
