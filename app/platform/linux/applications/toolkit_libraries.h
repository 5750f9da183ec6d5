#pragma once

#include <cstdint>
#include <string>

namespace quillon {

/// What a process draws its windows with, as far as that decides how it comes to share its menus.
struct ToolkitLibraries {
    /// Its programs are on the accessibility bus only by a module of its own (package libatk-adaptor,
    /// GTK_MODULES=gail:atk-bridge).
    bool gtk2 = false;
    /// Its programs look for the accessibility bus when they begin, and not again.
    bool qt = false;

    bool operator==(const ToolkitLibraries&) const = default;
};

/// Nothing when the process is gone or another user's. `processes` is the folder of the running processes,
/// /proc. Reads a file of some hundred kilobytes.
ToolkitLibraries toolkitLibraries(std::int64_t pid, const std::string& processes);

} // namespace quillon
