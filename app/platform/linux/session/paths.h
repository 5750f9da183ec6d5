#pragma once

#include "session_kind.h"

#include <filesystem>
#include <vector>

namespace quillon {

/// The name of this program's folders and of its desktop entry.
inline constexpr const char* applicationID = "app.quillon.Quillon";

/// `$XDG_CONFIG_HOME`, or `~/.config` when it is not an absolute path. Empty when there is no home either.
std::filesystem::path configHome(const Environment& environment = processEnvironment);
/// `$XDG_DATA_HOME`, or `~/.local/share` likewise.
std::filesystem::path dataHome(const Environment& environment = processEnvironment);

/// The file that holds the settings. Neither it nor its folder need exist. Empty without a home.
std::filesystem::path settingsFile(const Environment& environment = processEnvironment);
/// The folder that holds what the program has learned. It need not exist. Empty without a home.
std::filesystem::path dataFolder(const Environment& environment = processEnvironment);

} // namespace quillon
