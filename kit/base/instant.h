#pragma once

#include <chrono>

namespace quillon {

/// A point in time, in microseconds since 1970-01-01 00:00:00 UTC. The kit never reads a clock: whoever calls
/// a rule hands in the time. A rule that only compares instants with each other (the hold detector) works
/// with those of any one clock.
using Instant = std::chrono::sys_time<std::chrono::microseconds>;

/// A length of time in seconds.
using Seconds = std::chrono::duration<double>;

/// The seconds from `earlier` to `later`; negative when they are the other way round.
constexpr Seconds secondsBetween(Instant earlier, Instant later) {
    return std::chrono::duration_cast<Seconds>(later - earlier);
}

/// `start` moved by `length`, rounded to whole microseconds.
constexpr Instant after(Instant start, Seconds length) {
    return start + std::chrono::round<std::chrono::microseconds>(length);
}

/// An instant before anything that can have happened: 0001-01-01 00:00:00 UTC. Stands for "never" where a
/// time is not optional.
inline constexpr Instant distantPast = std::chrono::sys_days{std::chrono::year{1} / 1 / 1};

} // namespace quillon
