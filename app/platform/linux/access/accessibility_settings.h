#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// A program and its arguments.
using ProgramCall = std::vector<std::string>;

/// What opens the desktop's own accessibility settings. `desktops` is $XDG_CURRENT_DESKTOP, names that are
/// joined by colons; `isInstalled` tells of a program by its name. The desktop's own panel comes first, then
/// any that is installed; absent when none is.
std::optional<ProgramCall>
accessibilitySettings(std::string_view desktops, const std::function<bool(const std::string&)>& isInstalled);

} // namespace quillon
