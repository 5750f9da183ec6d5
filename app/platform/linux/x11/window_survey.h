#pragma once

#include "x11_connection.h"

#include <quillon/app/platform/linux/applications/app_facts.h>

#include <span>
#include <string>
#include <vector>

namespace quillon {

/// What a window tells of itself.
struct SurveyedWindow {
    xcb_window_t id = XCB_NONE;
    std::string title;                    ///< UTF-8; cut after 1,024 bytes; "" also when in another encoding
    xcb_window_t transientFor = XCB_NONE; ///< the window that it belongs to
    WindowFacts facts;
};

/// Asks about windows, all at once. Those that have vanished are left out; when the server does not answer in
/// time, so are the others.
std::vector<SurveyedWindow> surveyWindows(X11Connection& x11, std::span<const xcb_window_t> windows);

} // namespace quillon
