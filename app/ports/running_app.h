#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillon {

/// A window as the desktop's window list knows it.
struct AppWindow {
    std::uint64_t id = 0; ///< the desktop's own number of it; 0 when it has none
    std::string title;    ///< as shown in its title bar; may be empty

    bool operator==(const AppWindow&) const = default;
};

/// A running application as its user sees it. One process can be several of them (an office suite), told
/// apart by `bundleID`.
struct RunningApp {
    std::int64_t pid = 0;
    std::string bundleID; ///< desktop-entry id without ".desktop", else the program's name; "" when unknown
    std::string name;     ///< the display name; "" when unknown
    /// Whose menus are its menus, best first: the active window, the windows that it belongs to, then the
    /// application's others, most recently active first. Empty when the desktop tells none.
    std::vector<AppWindow> windows;

    bool operator==(const RunningApp&) const = default;
};

/// Whether both are one application, whatever their windows.
inline bool isSameApp(const RunningApp& a, const RunningApp& b) {
    return a.pid == b.pid && a.bundleID == b.bundleID;
}

} // namespace quillon
