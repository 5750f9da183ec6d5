#include "window_manager.h"

#include "x11_property.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>

namespace quillon {

namespace {

constexpr std::uint32_t one = 4;
constexpr std::uint32_t supportedLimit = 4096;
constexpr std::uint32_t nameLimit = 256;

} // namespace

/// A manager that has ended leaves its promises on the root window: they count only while the window that it
/// named as its own exists and says so itself.
xcb_window_t windowManagerThatTells(X11Connection& x11) {
    const xcb_atom_t check = x11.atom(X11Name::netSupportingWmCheck);
    auto named = X11Property::ask(x11, x11.root(), check, one);
    auto supported = X11Property::ask(x11, x11.root(), x11.atom(X11Name::netSupported), supportedLimit);
    named.receive(x11);
    supported.receive(x11);
    const auto names = supported.numbers();
    const xcb_window_t manager = named.number().value_or(XCB_NONE);
    if (manager == XCB_NONE || std::ranges::find(names, x11.atom(X11Name::netActiveWindow)) == names.end())
        return XCB_NONE;
    auto confirmed = X11Property::ask(x11, manager, check, one);
    confirmed.receive(x11);
    return confirmed.number() == manager ? manager : xcb_window_t{XCB_NONE};
}

std::string windowManagerName(X11Connection& x11, xcb_window_t manager) {
    auto name = X11Property::ask(x11, manager, x11.atom(X11Name::netWmName), nameLimit);
    name.receive(x11);
    return unicode::repaired(name.text());
}

} // namespace quillon
