#pragma once

#include "x11_connection.h"

#include <quillon/app/ports/foreground.h>

#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// Asks the window manager for the front, as on the user's own wish and as of now: of requests that are older
/// than what the user did last in another window nothing comes. A window of another workspace comes to the
/// one that is shown; some window managers only mark it otherwise.
class X11Foreground final : public Foreground {
  public:
    /// `maker` is the connection that the windows were made on; the toolkit's when it is null.
    explicit X11Foreground(std::shared_ptr<X11Connection> x11, xcb_connection_t* maker = nullptr);
    ~X11Foreground() override;

    void bring(std::uintptr_t window) override;
    /// A start that a launcher is waiting for ends when the window is there.
    void expect(std::string activationToken) override { m_token = std::move(activationToken); }

  private:
    void askForTime();
    void moveHere(xcb_window_t window);
    void handle(const xcb_generic_event_t& event);
    void activate(xcb_window_t window, xcb_timestamp_t time);
    void endStart(const std::string& token);
    void sendToRoot(xcb_window_t window, xcb_atom_t type, std::uint8_t format, const void* data);
    xcb_connection_t* maker() const;

    std::shared_ptr<X11Connection> m_x11;
    xcb_connection_t* m_maker;
    xcb_intern_atom_cookie_t m_currentDesktop; ///< the name of the root window's property; not read yet
    std::optional<xcb_atom_t> m_currentDesktopName;
    xcb_window_t m_clock = XCB_NONE; ///< a window of ours, never shown, of which the server tells changes
    Subscription m_clockEvents;
    Subscription m_events;
    xcb_window_t m_wanted = XCB_NONE; ///< to be brought as soon as the time is known
    std::string m_token;
};

} // namespace quillon
