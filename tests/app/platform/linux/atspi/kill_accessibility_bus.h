#pragma once

namespace quillon {

/// Kills the process that is the accessibility bus of this session.
void killAccessibilityBus();

} // namespace quillon
