#pragma once

#include <quillon/kit/shortcut/modifiers.h>

#include <array>
#include <string>
#include <string_view>

namespace quillon {

/// The modifier that opens the overlay when it is held alone.
enum class TriggerKey { command, option, control };

inline constexpr std::array allTriggerKeys{TriggerKey::command, TriggerKey::option, TriggerKey::control};

/// The stored form: "command", "option" or "control".
std::string_view rawValue(TriggerKey key);
/// From the stored form; anything unknown is `command`.
TriggerKey triggerKeyFromRawValue(std::string_view rawValue);
Modifiers modifier(TriggerKey key);
/// "⌘", "⌥" or "⌃".
std::string glyph(TriggerKey key);

} // namespace quillon
