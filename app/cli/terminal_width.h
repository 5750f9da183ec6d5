#pragma once

#include <cstddef>
#include <string_view>

namespace quillon {

/// How many cells a terminal gives to a UTF-8 text: two for wide and full-width characters (Unicode's East
/// Asian Width), none for combining marks and format characters.
std::size_t terminalWidth(std::string_view text);

} // namespace quillon
