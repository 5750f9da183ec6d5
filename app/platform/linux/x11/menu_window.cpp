#include "menu_window.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace quillon {

namespace {

/// A menu lies above everything else but for a few tooltips and panels.
constexpr std::size_t mostLookedAt = 8;
constexpr std::uint32_t typesBytes = 4 * 16;

} // namespace

bool mayBeMenu(const X11Connection& x11, std::span<const xcb_atom_t> types) {
    constexpr std::array others{
        X11Name::netWmWindowTypeCombo, X11Name::netWmWindowTypeDnd, X11Name::netWmWindowTypeNotification,
        X11Name::netWmWindowTypeTooltip};
    return std::ranges::none_of(
        others, [&](X11Name other) { return std::ranges::find(types, x11.atom(other)) != types.end(); });
}

BareWindowQuestion::BareWindowQuestion(X11Connection& x11, xcb_window_t window)
    : m_window(window), m_geometry(xcb_get_geometry(x11.xcb(), window)),
      m_types(X11Property::ask(x11, window, x11.atom(X11Name::netWmWindowType), typesBytes)),
      m_pid(ClientPid::ask(x11, window)) {}

std::optional<BareWindow> BareWindowQuestion::receive(X11Connection& x11) {
    const auto geometry = x11.reply<xcb_get_geometry_reply_t>(m_geometry);
    m_types.receive(x11);
    BareWindow result{m_window, mayBeMenu(x11, m_types.numbers()), {}, m_pid.receive(x11)};
    if (!geometry)
        return std::nullopt;
    const int borders = 2 * geometry->border_width;
    result.frame = Rect{
        static_cast<double>(geometry->x), static_cast<double>(geometry->y),
        static_cast<double>(geometry->width + borders), static_cast<double>(geometry->height + borders)};
    return result;
}

std::vector<xcb_window_t> topmostBareWindows(X11Connection& x11) {
    std::vector<xcb_window_t> windows;
    const auto tree = x11.reply<xcb_query_tree_reply_t>(xcb_query_tree(x11.xcb(), x11.root()));
    if (!tree)
        return windows;
    const std::span children(
        xcb_query_tree_children(tree.get()),
        static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
    const auto topmost = children.last(std::min(children.size(), mostLookedAt));
    std::vector<xcb_get_window_attributes_cookie_t> cookies;
    for (const xcb_window_t window : topmost)
        cookies.push_back(xcb_get_window_attributes(x11.xcb(), window));
    for (std::size_t i = 0; i < topmost.size(); ++i) {
        const auto attributes = x11.reply<xcb_get_window_attributes_reply_t>(cookies[i]);
        const bool isShown = attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE
                             && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
        if (isShown && attributes->override_redirect != 0)
            windows.push_back(topmost[i]);
    }
    return windows;
}

} // namespace quillon
