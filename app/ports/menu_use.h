#pragma once

#include "geometry.h"
#include "running_app.h"

#include <quillon/kit/base/subscription.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// Tells one item of the open menus from another, for as long as they are open. 0 is no item.
using MenuItemNumber = std::uint64_t;

/// What an application tells of an item of its open menus.
struct MenuItemFacts {
    /// The titles from the top-level menu down to the item, as the reader of whole menus gives them. Of a
    /// context menu's own item its title alone; without an end that is known, empty.
    std::vector<std::string> path;
    std::optional<Shortcut> shortcut; ///< as the reader gives it; absent for none
    bool enabled = true;              ///< before it was chosen
    std::optional<Rect> frame;        ///< in the coordinates of `menu_use::Released`; absent when not known

    bool operator==(const MenuItemFacts&) const = default;
};

/// What can be noticed of the use of another application's menus.
namespace menu_use {

/// A menu of `app` opened while none was open.
struct Opened {
    RunningApp app;
    bool operator==(const Opened&) const = default;
};
/// The item that is pointed at, with the pointer or with keys, became another one, or none.
struct Pointed {
    MenuItemNumber item = 0;
    bool operator==(const Pointed&) const = default;
};
/// What the application answered about an item that was pointed at; anytime after that, or never.
struct Told {
    MenuItemNumber item = 0;
    MenuItemFacts facts;
    bool operator==(const Told&) const = default;
};
/// The left pointer button was let go.
struct Released {
    Point at; ///< in the coordinates of `MenuItemFacts::frame`
    bool operator==(const Released&) const = default;
};
/// No menu is open any more.
struct Closed {
    bool operator==(const Closed&) const = default;
};

} // namespace menu_use

using MenuEvidence =
    std::variant<menu_use::Opened, menu_use::Pointed, menu_use::Told, menu_use::Released, menu_use::Closed>;

/// Notices how the user uses the menus of other applications. What it noticed comes as it was noticed, and so
/// in no strict order: an application can tell that a menu closed before the desktop tells of the button that
/// closed it.
class MenuUse {
  public:
    virtual ~MenuUse() = default;

    /// Called on the main thread with all evidence, while the handle lives. Waits for nobody, and costs next
    /// to nothing while no menu is open.
    virtual Subscription onEvidence(std::function<void(const MenuEvidence&)> callback) = 0;
};

} // namespace quillon
