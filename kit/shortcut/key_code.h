#pragma once

#include "special_key.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// The macOS virtual key codes (`kVK_…`), which name keys by their place on an ANSI keyboard.
namespace quillon::KeyCodes {

/// Of the key with that name; absent for those that no code names (Shift-Tab, Eject).
std::optional<std::int64_t> of(SpecialKey key);

/// Of the key that gives `character` (letters in upper case) without modifiers; absent when no key does.
std::optional<std::int64_t> ofCharacter(std::string_view character);

/// The key beside the left ⇧ of ISO keyboards (`kVK_ISO_Section`). An ANSI keyboard lacks it, so that it has
/// neither a name nor a character of its own.
inline constexpr std::int64_t isoSection = 10;

} // namespace quillon::KeyCodes
