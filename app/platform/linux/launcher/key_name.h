#pragma once

#include <quillon/kit/shortcut/modifiers.h>

#include <string_view>

namespace quillon {

/// The modifier that a desktop's settings mean by a shortcut that is a modifier alone: "Super_L", "<Super>",
/// "Meta", "Alt_R". Of several alternatives, "Super_L::Super_R", the first. None for anything else.
Modifiers modifierAlone(std::string_view shortcut);

} // namespace quillon
