#pragma once

#include <string_view>

namespace quillon {

/// Stops the program because one of its own rules was broken: a counter overflowed, an argument was out of
/// the range its function asks for. Writes `rule` to standard error and aborts; never returns. Not for bad
/// input, which is a value (absent, empty, an error) and never stops anything.
[[noreturn]] void programError(std::string_view rule);

} // namespace quillon
