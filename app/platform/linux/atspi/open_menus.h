#pragma once

#include "menu_place.h"
#include "read_limits.h"

#include <quillon/app/ports/menu_use.h>
#include <quillon/app/ports/running_app.h>

#include <memory>
#include <optional>
#include <stop_token>

namespace quillon::atspi {

class MenuBarMemory;

/// What openings of menus that come after each other share.
std::shared_ptr<MenuBarMemory> makeMenuBarMemory();

/// The menus that one application has open now, asked over a connection of their own. The application is
/// asked about the items that somebody wants to know of and no others. Of one thread at a time.
class OpenMenus {
  public:
    /// Asks nothing yet. `memory` is never null.
    OpenMenus(RunningApp app, std::shared_ptr<MenuBarMemory> memory, const ReadLimits& limits = patience());
    ~OpenMenus();
    OpenMenus(const OpenMenus&) = delete;
    OpenMenus& operator=(const OpenMenus&) = delete;

    /// The command, title or submenu at a place; path and shortcut are those of the whole sheet. Waits within
    /// the limits, so never to be called on the main thread. Absent when there is none, it is not the menu
    /// bar's, or the application does not answer: once it has not, for good.
    std::optional<MenuItemFacts> itemAt(const MenuPlace& place, const std::stop_token& stop);

    /// How long an application may take with a single answer: nobody remembers a click for longer.
    static ReadLimits patience();

  private:
    class Session;

    RunningApp m_app;
    std::shared_ptr<MenuBarMemory> m_memory;
    ReadLimits m_limits;
    std::stop_source m_stop;
    std::unique_ptr<Session> m_session; ///< from the first question on
};

} // namespace quillon::atspi
