#include "keymap_request.h"

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

#include <utility>

namespace quillon {

namespace {

template <class T>
using Owned = std::unique_ptr<T, void (*)(T*)>;

Keymap::Handle read(xcb_connection_t* connection) {
    Keymap::Handle nothing(nullptr, xkb_keymap_unref);
    const bool speaksXkb = xkb_x11_setup_xkb_extension(
                               connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                               XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr)
                           != 0;
    const std::int32_t keyboard = speaksXkb ? xkb_x11_get_core_keyboard_device_id(connection) : -1;
    const Owned<xkb_context> context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES), xkb_context_unref);
    if (keyboard < 0 || !context)
        return nothing;
    return {
        xkb_x11_keymap_new_from_device(context.get(), connection, keyboard, XKB_KEYMAP_COMPILE_NO_FLAGS),
        xkb_keymap_unref};
}

} // namespace

std::shared_ptr<const Keymap> requestKeymap(const std::string& display) {
    const Owned<xcb_connection_t> connection(
        xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr), xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0)
        return nullptr;
    Keymap::Handle keymap = read(connection.get());
    return keymap ? std::make_shared<const Keymap>(std::move(keymap)) : nullptr;
}

} // namespace quillon
