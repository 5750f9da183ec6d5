#pragma once

#include <quillon/app/ports/clock.h>

namespace quillon {

/// The machine's clocks.
class SystemClock final : public Clock {
  public:
    Instant now() const override;
    Instant steadyNow() const override;
};

} // namespace quillon
