#include "system_clock.h"

namespace quillon {

Instant SystemClock::now() const {
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

Instant SystemClock::steadyNow() const {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return Instant(std::chrono::floor<std::chrono::microseconds>(sinceStart));
}

} // namespace quillon
