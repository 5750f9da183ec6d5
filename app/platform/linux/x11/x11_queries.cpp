#include "x11_queries.h"

#include "x11_property.h"

#include <xcb/res.h>

#include <unistd.h>

namespace quillon {

namespace {

/// Windows are nested a few levels deep; a tree that changes while it is climbed must not keep us.
constexpr int deepestNesting = 16;

} // namespace

std::optional<xcb_window_t> inputFocus(X11Connection& x11) {
    const auto reply = x11.reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(x11.xcb()));
    return reply ? std::optional(reply->focus) : std::nullopt;
}

xcb_window_t applicationWindowOf(X11Connection& x11, xcb_window_t window) {
    xcb_window_t withClass = XCB_NONE;
    for (int level = 0; level < deepestNesting; ++level) {
        auto windowClass = X11Property::ask(x11, window, XCB_ATOM_WM_CLASS, 4);
        const auto cookie = xcb_query_tree(x11.xcb(), window);
        windowClass.receive(x11);
        const auto tree = x11.reply<xcb_query_tree_reply_t>(cookie);
        if (!tree)
            return XCB_NONE;
        if (windowClass.type() != XCB_ATOM_NONE)
            withClass = window;
        if (tree->parent == tree->root)
            return withClass == XCB_NONE ? window : withClass;
        window = tree->parent;
    }
    return withClass;
}

ClientPid ClientPid::ask(X11Connection& x11, xcb_window_t window) {
    ClientPid result;
    if (x11.extensions().clientPids) {
        const xcb_res_client_id_spec_t spec{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
        result.m_sequence = xcb_res_query_client_ids(x11.xcb(), 1, &spec).sequence;
    }
    return result;
}

std::optional<std::int64_t> ClientPid::receive(X11Connection& x11) const {
    if (!m_sequence)
        return std::nullopt;
    const auto reply =
        x11.reply<xcb_res_query_client_ids_reply_t>(xcb_res_query_client_ids_cookie_t{*m_sequence});
    if (!reply)
        return std::nullopt;
    for (auto it = xcb_res_query_client_ids_ids_iterator(reply.get()); it.rem > 0;
         xcb_res_client_id_value_next(&it)) {
        if ((it.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0
            && xcb_res_client_id_value_value_length(it.data) > 0)
            return *xcb_res_client_id_value_value(it.data);
    }
    return std::nullopt;
}

bool isOfThisProcess(X11Connection& x11, xcb_window_t window) {
    return ClientPid::ask(x11, window).receive(x11) == ::getpid();
}

} // namespace quillon
