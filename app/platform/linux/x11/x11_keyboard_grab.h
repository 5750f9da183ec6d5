#pragma once

#include <quillon/app/ports/keyboard_grab.h>

#include <memory>

struct xcb_connection_t;

namespace quillon {

/// An active grab of the keyboard: the keys that window managers have bound are theirs by passive grabs,
/// which an active one goes before. It is the toolkit's connection that grabs, because the presses come to
/// the connection that did. Nothing here waits for the server.
class X11KeyboardGrab final : public KeyboardGrab {
  public:
    /// `toolkit` is the connection that `window` gets its key events by, and outlives this.
    explicit X11KeyboardGrab(xcb_connection_t* toolkit) : m_toolkit(toolkit) {}
    /// For the windows of the toolkit; null where it draws without an X server.
    static std::unique_ptr<X11KeyboardGrab> ofToolkit();

    Subscription take(std::uint64_t window, std::function<void()> taken) override;

  private:
    xcb_connection_t* m_toolkit;
};

} // namespace quillon
