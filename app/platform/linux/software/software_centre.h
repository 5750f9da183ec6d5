#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// The program that is this desktop's software centre. `desktops` is $XDG_CURRENT_DESKTOP, names that are
/// joined by colons; `isInstalled` tells of a program by its name. The desktop's own comes first, then any
/// that is installed; absent when none is. Each of them takes an "appstream:" address.
std::optional<std::string>
softwareCentre(std::string_view desktops, const std::function<bool(const std::string&)>& isInstalled);

} // namespace quillon
