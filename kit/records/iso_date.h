#pragma once

#include <quillon/kit/base/instant.h>

#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// "2024-05-01T09:30:00Z": whole seconds (what lies within one is dropped), UTC. Years have four digits, so
/// an instant outside of 0000 to 9999 is written as the nearest that can be.
std::string isoDate(Instant instant);

/// The instant that such a text names, with "Z" or an offset as in "+02:00". Absent for anything else,
/// fractions of a second and days that no calendar has included.
std::optional<Instant> parseIsoDate(std::string_view text);

} // namespace quillon
