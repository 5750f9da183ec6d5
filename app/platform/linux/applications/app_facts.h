#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace quillon {

/// What a window tells of its application. Texts are "" when it does not say.
struct WindowFacts {
    std::int64_t pid = 0;         ///< 0 when unknown
    std::string instance;         ///< the first part of WM_CLASS
    std::string className;        ///< its second part
    std::string gtkApplicationID; ///< _GTK_APPLICATION_ID

    auto operator<=>(const WindowFacts&) const = default;
};

/// What a process tells of its application. Texts are "" when it does not say.
struct ProcessFacts {
    std::string flatpakID;      ///< the application's name inside of a Flatpak
    std::string snapEntryID;    ///< a Snap's desktop-entry id, NAME_COMMAND
    std::string controlGroupID; ///< the application that its control group is named after
    std::string executable;     ///< the program's file name; a script's own name where its interpreter runs

    bool operator==(const ProcessFacts&) const = default;
};

/// How an application is known to this program and to its user.
struct AppIdentity {
    std::string bundleID; ///< desktop-entry id without ".desktop", else the program's name; "" when unknown
    std::string name;     ///< the display name; "" when unknown

    bool operator==(const AppIdentity&) const = default;
};

} // namespace quillon
