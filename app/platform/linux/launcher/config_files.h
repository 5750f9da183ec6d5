#pragma once

#include <quillon/kit/shortcut/modifiers.h>

#include <optional>
#include <string>

/// What desktops without GSettings write down of their launcher's key. Broken files tell nothing.
namespace quillon::launcher {

/// KWin's: the group `[ModifierOnlyShortcuts]`, in which a modifier's key is absent while it does what it
/// does by default.
Modifiers fromKWin(const std::string& file);

/// Xfce's shortcuts: a modifier's own key among the commands. The user's commands replace the default ones.
Modifiers fromXfce(const std::string& file);

/// LXQt's global shortcuts: each a group that is named after its keys, with a number.
Modifiers fromLxqt(const std::string& file);

/// The settings of Cinnamon's menu. Absent when the file does not tell.
std::optional<Modifiers> fromCinnamon(const std::string& file);

} // namespace quillon::launcher
