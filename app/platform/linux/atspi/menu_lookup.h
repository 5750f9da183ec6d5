#pragma once

#include "menu_place.h"

#include <quillon/app/ports/menu_use.h>

#include <optional>
#include <stop_token>

namespace quillon::atspi {

/// Tells what is at a place in the menus that an application has open. Waits, so never to be called on the
/// main thread; of one thread at a time.
class MenuLookup {
  public:
    virtual ~MenuLookup() = default;

    /// Gets ready to ask: called once, when the first menu has opened.
    virtual void begin(const std::stop_token& stop) = 0;

    /// The least that has to be asked while a menu is open so that `itemAt` still finds its item after a
    /// click has closed it: which costs the application a few answers. Gives the area for which that is done
    /// now; absent when nothing is there that could be chosen.
    virtual std::optional<Rect> prepare(const MenuPlace& place, const std::stop_token& stop) = 0;

    /// The command, title or submenu at a place. Absent when there is none, or the application does not tell.
    virtual std::optional<MenuItemFacts> itemAt(const MenuPlace& place, const std::stop_token& stop) = 0;
};

} // namespace quillon::atspi
