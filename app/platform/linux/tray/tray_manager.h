#pragma once

#include <quillon/app/platform/linux/x11/x11_connection.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace quillon {

/// The client that has the tray of an X server's screen, the owner of its `_NET_SYSTEM_TRAY_S…` selection; as
/// one comes, goes, and comes again.
class TrayManager {
  public:
    explicit TrayManager(std::shared_ptr<X11Connection> x11);

    /// The window that icons ask for a place; XCB_NONE without a tray.
    xcb_window_t window() const { return m_window; }
    /// What icons' windows should have; 0 when it does not say.
    xcb_visualid_t visual() const { return m_visual; }
    /// `_NET_SYSTEM_TRAY_COLORS`; empty when it does not say.
    const std::vector<std::uint32_t>& colours() const { return m_colours; }

    /// Called when another window has the tray, or none.
    Subscription onChanged(std::function<void()> callback) {
        return m_changed.subscribe(std::move(callback));
    }
    /// Called when its colours changed.
    Subscription onColoursChanged(std::function<void()> callback) {
        return m_coloursChanged.subscribe(std::move(callback));
    }

  private:
    void handle(const xcb_generic_event_t& event);
    void drained();
    void look();
    void adopt(xcb_window_t owner);
    void readColours();

    std::shared_ptr<X11Connection> m_x11;
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    bool m_hasToLook = true;
    bool m_hasToReadColours = false;
    xcb_window_t m_window = XCB_NONE;
    xcb_visualid_t m_visual = 0;
    std::vector<std::uint32_t> m_colours;
    Event<> m_changed;
    Event<> m_coloursChanged;
    Subscription m_rootEvents;
    Subscription m_ownerEvents;
    Subscription m_events;
    Subscription m_drained;
    Subscription m_caughtUp;
};

} // namespace quillon
