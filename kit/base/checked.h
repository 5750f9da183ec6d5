#pragma once

#include "program_error.h"

#include <cstdint>

namespace quillon {

/// Every counter of the records: how often something happened.
using Count = std::int64_t;

/// a + b; a sum outside of 64 bits is a program error.
constexpr Count checkedAdd(Count a, Count b) {
    Count sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        programError("a counter left the range of a signed 64-bit integer");
    return sum;
}

/// a - b; a difference outside of 64 bits is a program error.
constexpr Count checkedSubtract(Count a, Count b) {
    Count difference = 0;
    if (__builtin_sub_overflow(a, b, &difference))
        programError("a counter left the range of a signed 64-bit integer");
    return difference;
}

} // namespace quillon
