#include "x11_report.h"

#include "keymap_request.h"
#include "window_manager.h"

#include <chrono>
#include <string_view>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds patience{2000};

bool isOwned(X11Connection& x11, std::string_view prefix) {
    const std::string name = std::string(prefix) + std::to_string(x11.screenNumber());
    const auto atom = x11.reply<xcb_intern_atom_reply_t>(
        xcb_intern_atom(x11.xcb(), 1, static_cast<std::uint16_t>(name.size()), name.data()));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const auto owner =
        x11.reply<xcb_get_selection_owner_reply_t>(xcb_get_selection_owner(x11.xcb(), atom->atom));
    return owner && owner->owner != XCB_NONE;
}

} // namespace

X11Report x11Report(const std::string& display) {
    X11Report report;
    const auto x11 = X11Connection::open(display, patience);
    if (!x11)
        return report;
    const X11Extensions& extensions = x11->extensions();
    report.display = true;
    report.xinput = extensions.xinputVersion;
    report.rawInput = extensions.xinputOpcode.has_value();
    report.xkb = extensions.xkbFirstEvent.has_value();
    report.keymap = requestKeymap(display) != nullptr;
    report.shape = extensions.shape;
    report.clientPids = extensions.clientPids;
    report.compositor = isOwned(*x11, "_NET_WM_CM_S");
    report.tray = isOwned(*x11, "_NET_SYSTEM_TRAY_S");
    if (const xcb_window_t manager = windowManagerThatTells(*x11); manager != XCB_NONE)
        report.windowManager = windowManagerName(*x11, manager);
    return report;
}

} // namespace quillon
