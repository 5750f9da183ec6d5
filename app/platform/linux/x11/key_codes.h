#pragma once

#include <cstdint>
#include <optional>

namespace quillon {

/// The macOS virtual key code (`kVK_…` of the ANSI and JIS layouts) of the key in the same place of the
/// keyboard. Absent for keys that have no such place.
///
/// `keyCode` is the X server's: the kernel's input event code (`KEY_…` of linux/input-event-codes.h) plus 8,
/// on every server that takes its input from the kernel. Insert counts as Help and Num Lock as Clear, which
/// have their places on an extended Mac keyboard.
std::optional<std::int64_t> virtualKeyCode(std::uint32_t keyCode);

} // namespace quillon
