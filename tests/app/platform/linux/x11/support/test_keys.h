#pragma once

#include <linux/input-event-codes.h>

#include <cstdint>

namespace quillon {

/// The key code by which the server knows a key of the kernel's (KEY_A …).
constexpr std::uint8_t keyCode(int key) {
    constexpr int firstOfServer = 8;
    return static_cast<std::uint8_t>(key + firstOfServer);
}

namespace testkeys {

inline constexpr std::uint8_t letterA = keyCode(KEY_A);
inline constexpr std::uint8_t letterS = keyCode(KEY_S);
inline constexpr std::uint8_t leftAlt = keyCode(KEY_LEFTALT);
inline constexpr std::uint8_t leftControl = keyCode(KEY_LEFTCTRL);
inline constexpr std::uint8_t leftShift = keyCode(KEY_LEFTSHIFT);
inline constexpr std::uint8_t leftSuper = keyCode(KEY_LEFTMETA);
inline constexpr std::uint8_t numLock = keyCode(KEY_NUMLOCK);

} // namespace testkeys

} // namespace quillon
