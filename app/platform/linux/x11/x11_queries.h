#pragma once

#include "x11_connection.h"

#include <cstdint>
#include <optional>

namespace quillon {

/// The window that has the keyboard; XCB_NONE or XCB_INPUT_FOCUS_POINTER_ROOT when none has. Absent when the
/// server does not answer in time.
std::optional<xcb_window_t> inputFocus(X11Connection& x11);

/// The application's own window around `window`: the outermost one that carries a WM_CLASS, else the child
/// of the root window. XCB_NONE when it vanished meanwhile.
xcb_window_t applicationWindowOf(X11Connection& x11, xcb_window_t window);

/// Asks for the process of the client that made a window, as the server knows it from its socket.
class ClientPid {
  public:
    /// Asks nothing where the server cannot tell.
    static ClientPid ask(X11Connection& x11, xcb_window_t window);
    /// Takes the reply. Absent for clients of other machines.
    std::optional<std::int64_t> receive(X11Connection& x11) const;

  private:
    std::optional<unsigned> m_sequence;
};

/// Whether this process made the window. False when unknown.
bool isOfThisProcess(X11Connection& x11, xcb_window_t window);

} // namespace quillon
