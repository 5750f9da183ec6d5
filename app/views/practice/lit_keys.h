#pragma once

#include <quillon/app/ports/printed_keys.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <cstdint>
#include <set>

namespace quillon {

/// The key codes of the modifier keys (`kVK_…`).
namespace ModifierKeyCodes {
inline constexpr std::int64_t rightCommand = 54;
inline constexpr std::int64_t command = 55;
inline constexpr std::int64_t shift = 56;
inline constexpr std::int64_t capsLock = 57;
inline constexpr std::int64_t option = 58;
inline constexpr std::int64_t control = 59;
inline constexpr std::int64_t rightShift = 60;
inline constexpr std::int64_t rightOption = 61;
inline constexpr std::int64_t rightControl = 62;
} // namespace ModifierKeyCodes

/// The keys of a keyboard that have to be pressed for a shortcut, by their codes: ⇧ too where a character
/// takes it. A key that the keyboard does not have is missing.
std::set<std::int64_t> litKeys(const Shortcut& shortcut, const PrintedKeys& printed);

/// An ANSI keyboard with what every one of them has on its keys, for desktops that do not tell.
PrintedKeys usualKeys();

} // namespace quillon
