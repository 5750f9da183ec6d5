#pragma once

namespace quillon {

/// From now on what Qt and this program's log say goes the way of all messages: to standard error, safe for a
/// terminal, a line each. Its form is $QT_MESSAGE_PATTERN's, where that is set.
void logToOutput();

} // namespace quillon
