#pragma once

#include "x11_connection.h"

#include <memory>

namespace quillon {

/// Which window the user works in: what the window manager says or, without one that says it, the window
/// that has the keyboard. This program's own panels, which no window manager knows, do not count: while one
/// of them has the keyboard, the window before it stays the active one.
class ActiveWindow {
  public:
    explicit ActiveWindow(std::shared_ptr<X11Connection> x11);
    ActiveWindow(const ActiveWindow&) = delete;
    ActiveWindow& operator=(const ActiveWindow&) = delete;

    /// XCB_NONE when no window is active.
    xcb_window_t current() const { return m_current; }
    /// Called when another window, or none, is active.
    Subscription onChanged(std::function<void()> callback) {
        return m_changed.subscribe(std::move(callback));
    }

  private:
    void handle(const xcb_generic_event_t& event);
    void windowGone(xcb_window_t window);
    void propertyChanged(xcb_atom_t property);
    void drained();
    void findManager();
    void update();
    xcb_window_t managersAnswer();
    xcb_window_t focusedWindow();
    void watchFocus(xcb_window_t focus);
    bool isWindow(xcb_window_t focus) const;
    bool isOwnPanel(xcb_window_t window);
    void set(xcb_window_t window);

    std::shared_ptr<X11Connection> m_x11;
    xcb_window_t m_current = XCB_NONE;
    xcb_window_t m_manager = XCB_NONE; ///< the window manager's own window, while it tells the active one
    xcb_window_t m_focus = XCB_NONE;   ///< whose focus events are selected
    bool m_managerIsStale = false;     ///< another manager may be at work
    bool m_isStale = false;            ///< another window may be active
    Event<> m_changed;
    Subscription m_rootEvents;
    Subscription m_managerEvents;
    Subscription m_focusEvents;
    Subscription m_events;
    Subscription m_drained;
    Subscription m_caughtUp;
    Subscription m_lost;
};

} // namespace quillon
