#pragma once

#include "running_app.h"

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// A running application that can be asked for its menus.
struct ListedApp {
    RunningApp app;
    std::string toolkit; ///< with its version: "gtk 3.24.38"; "" when unknown
    /// What it is called besides its id and its name: by its program's file, by its windows' class.
    std::vector<std::string> otherNames = {};

    bool operator==(const ListedApp&) const = default;
};

/// The running applications, for commands that have nothing to do but wait for them. Waits for other
/// processes within bounds.
class ApplicationList {
  public:
    virtual ~ApplicationList() = default;

    /// Why no application's menus can be read at all, for the user to read: "accessibility is off; …". Absent
    /// when nothing stands in the way.
    virtual std::optional<std::string> obstacle() = 0;
    /// The applications that can be asked for their menus, this program left out; one process that is several
    /// applications to its user (an office suite) is listed once for each. Empty when there is an obstacle.
    virtual std::vector<ListedApp> apps() = 0;
    /// The application of the active window; absent when there is none or the desktop does not tell.
    virtual std::optional<RunningApp> front() = 0;
};

} // namespace quillon
