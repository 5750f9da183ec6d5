#pragma once

#include "tray_manager.h"

#include <quillon/app/platform/linux/x11/x11_connection.h>
#include <quillon/app/ports/app_icons.h>
#include <quillon/app/ports/appearance.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillon {

/// What stands in the window that a tray takes in.
struct DockedIconContent {
    std::string name; ///< of the window, UTF-8
    /// For a tray of this scheme, a square of so many pixels.
    std::function<IconPixels(ColourScheme tray, int size)> draw;
    std::function<ColourScheme()> windowScheme; ///< of a tray that does not show its own
    std::function<void(int button)> clicked;    ///< the X server's number of the button, once it was let go
};

/// The program's icon in an X server's tray (XEmbed): a small window that the tray's manager takes into its
/// own. Where there is no manager it waits for one, and again when one is gone.
class DockedIcon {
  public:
    DockedIcon(std::shared_ptr<X11Connection> x11, DockedIconContent content);
    ~DockedIcon();
    DockedIcon(const DockedIcon&) = delete;
    DockedIcon& operator=(const DockedIcon&) = delete;

    /// A tray has taken the window in and lets it be seen.
    bool isShown() const { return m_isTakenIn && m_isMapped; }
    Subscription onShownChanged(std::function<void()> callback) {
        return m_shownChanged.subscribe(std::move(callback));
    }
    /// The windows of the desktop are of another scheme.
    void schemeChanged();

  private:
    void managerChanged();
    void makeWindow();
    void describeWindow() const;
    void askForPlace() const;
    void handle(const xcb_generic_event_t& event);
    bool handleOwn(const xcb_generic_event_t& event);
    void reparented(xcb_window_t parent);
    void drained();
    void tellShown();
    void paint();
    std::vector<std::uint32_t> background(int left, int top, int size) const;
    void dropWindow();

    std::shared_ptr<X11Connection> m_x11;
    DockedIconContent m_content;
    TrayManager m_manager;
    xcb_window_t m_window = XCB_NONE;
    xcb_colormap_t m_colours = XCB_NONE; ///< of the window, when it has its own
    xcb_gcontext_t m_pen = XCB_NONE;
    std::uint8_t m_depth = 0; ///< the window's bits per pixel
    int m_width = 0;
    int m_height = 0;
    bool m_isTakenIn = false;
    bool m_isMapped = false;
    bool m_hasToPaint = false;
    std::vector<int> m_clicks; ///< the buttons that were let go since that was told
    bool m_wasShown = false;
    Event<> m_shownChanged;
    Subscription m_managerChange;
    Subscription m_colourChange;
    Subscription m_events;
    Subscription m_drained;
    Subscription m_caughtUp;
};

} // namespace quillon
