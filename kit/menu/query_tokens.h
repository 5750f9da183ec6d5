#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The pieces of a text between its white space.
std::vector<std::string> splitAtWhitespace(std::string_view text);

} // namespace quillon
