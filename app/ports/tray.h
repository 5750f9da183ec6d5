#pragma once

#include "app_icons.h"
#include "appearance.h"

#include <quillon/kit/base/subscription.h>
#include <quillon/kit/shortcut/key.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// One line of the tray's menu.
struct TrayMenuItem {
    enum class Kind {
        command,
        line, ///< tells something and cannot be chosen
        separator
    };

    int id = 0; ///< positive, of no other line of the menu; the same for as long as the line is the same
    Kind kind = Kind::command;
    std::string label = {}; ///< shown as it is; an ampersand or an underscore is nothing special
    /// Shown beside a command, with the platform's own modifier for commands (Ctrl, or ⌘ on macOS); absent
    /// for none.
    std::optional<Key> key = {};

    bool operator==(const TrayMenuItem&) const = default;
};

/// What stands in the tray, and what is done with it there.
struct TrayPresence {
    std::string name;      ///< of the program, for a tip and for screen readers
    std::string themeIcon; ///< in the icon theme, where trays colour it themselves
    /// The icon for a tray of this scheme, a square of so many device pixels.
    std::function<IconPixels(ColourScheme tray, int size)> draw;
    std::function<void(int id)> chosen;   ///< a command of the menu, by its `id`
    std::function<void()> openMenu;       ///< a click, where the tray shows no menus itself
    std::function<void()> secondaryClick; ///< the middle button
};

/// The program's place in the desktop's tray: an icon with a menu. Where there is no tray nothing is shown;
/// when one comes, be it later or again, the icon appears in it.
class Tray {
  public:
    virtual ~Tray() = default;

    /// Once.
    virtual void show(TrayPresence presence) = 0;
    /// The menu from now on, also while it is open.
    virtual void setMenu(std::vector<TrayMenuItem> items) = 0;
    /// Whether the icon is in a tray that shows it. Never waits.
    virtual bool isShown() const = 0;
    /// Called on the main thread when `isShown` changed.
    virtual Subscription onShownChanged(std::function<void()> callback) = 0;
};

} // namespace quillon
