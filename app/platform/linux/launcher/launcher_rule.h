#pragma once

#include <quillon/kit/shortcut/modifiers.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Where a desktop says what opens its launcher.
struct LauncherSources {
    /// The texts of a GSettings key that holds one or several. Absent where there is no such key.
    std::function<std::optional<std::vector<std::string>>(const char* schema, const char* key)> setting;
    /// A file in the user's configuration, or else in the computer's. Absent when there is none.
    std::function<std::optional<std::string>(const std::string& path)> file;
    /// The files of a folder in the user's configuration.
    std::function<std::vector<std::string>(const std::string& folder)> folder;
};

/// The modifier that opens the launcher by itself. `desktops` is $XDG_CURRENT_DESKTOP, names that are joined
/// by colons, of which the first that is known counts. None where nothing is known.
Modifiers launcherModifier(std::string_view desktops, const LauncherSources& sources);

} // namespace quillon
