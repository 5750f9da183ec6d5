#pragma once

#include <quillon/kit/base/instant.h>

namespace quillon {

/// Where the program's times come from.
class Clock {
  public:
    virtual ~Clock() = default;

    /// The time of day; may jump when the system's clock is set.
    virtual Instant now() const = 0;
    /// A time that only ever grows, for measuring; its zero means nothing.
    virtual Instant steadyNow() const = 0;
};

} // namespace quillon
