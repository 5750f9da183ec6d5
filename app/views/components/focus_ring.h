#pragma once

namespace quillon {

/// What controls keep free around them, on every side, for the ring that shows the keyboard's focus; in
/// logical pixels. What stands in a column with them keeps as much, so that edges meet.
inline constexpr int focusRingRoom = 3;

} // namespace quillon
