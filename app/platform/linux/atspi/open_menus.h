#pragma once

#include "menu_lookup.h"
#include "read_limits.h"

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
class OpenMenus final : public MenuLookup {
  public:
    /// Asks nothing yet. `memory` is never null.
    OpenMenus(RunningApp app, std::shared_ptr<MenuBarMemory> memory, const ReadLimits& limits = patience());
    ~OpenMenus() override;
    OpenMenus(const OpenMenus&) = delete;
    OpenMenus& operator=(const OpenMenus&) = delete;

    void begin(const std::stop_token& stop) override;
    /// Within the limits. Once the application has not answered, it is asked again for an item only.
    std::optional<Rect> prepare(const MenuPlace& place, const std::stop_token& stop) override;
    /// The menu bar's items alone. Path and shortcut are those of the whole sheet.
    std::optional<MenuItemFacts> itemAt(const MenuPlace& place, const std::stop_token& stop) override;

    /// How long an application may take with a single answer: nobody remembers a click for longer.
    static ReadLimits patience();

  private:
    class Session;

    Session& session();

    RunningApp m_app;
    std::shared_ptr<MenuBarMemory> m_memory;
    ReadLimits m_limits;
    std::stop_source m_stop;
    std::unique_ptr<Session> m_session; ///< from the first question on; another once one has ended
};

} // namespace quillon::atspi
