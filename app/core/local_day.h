#pragma once

#include <quillon/kit/base/instant.h>
#include <quillon/kit/records/weeks.h>

namespace quillon {

/// The day that the instant lies in where the user is now.
Day localDay(Instant instant);

} // namespace quillon
