#pragma once

#include "x11_connection.h"
#include "x11_property.h"
#include "x11_queries.h"

#include <quillon/app/ports/geometry.h>

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <span>

namespace quillon {

/// What is known of a window that no window manager handles and that has just come to the screen.
struct BareWindow {
    xcb_window_t window = XCB_NONE;
    bool isMenu =
        false;  ///< by its type; toolkits differ in what they call one, so all but what surely is none
    Rect frame; ///< in the pixels of the display
    std::optional<std::int64_t> pid; ///< whose it is; absent when the server cannot tell
};

/// Whether a window of these types may be a menu: it is no tooltip, no list of a combo box, no notification
/// and nothing that is dragged. A window without a type may be one.
bool mayBeMenu(const X11Connection& x11, std::span<const xcb_atom_t> types);

/// Asks about a window.
class BareWindowQuestion {
  public:
    BareWindowQuestion(X11Connection& x11, xcb_window_t window);
    /// Takes the reply, once; absent when the window vanished meanwhile or the server does not answer in
    /// time.
    std::optional<BareWindow> receive(X11Connection& x11);

  private:
    xcb_window_t m_window;
    xcb_get_geometry_cookie_t m_geometry;
    X11Property m_types;
    ClientPid m_pid;
};

/// The topmost windows of the screen that are shown and that no window manager handles, the lowest first. At
/// most eight windows are looked at.
std::vector<xcb_window_t> topmostBareWindows(X11Connection& x11);

} // namespace quillon
