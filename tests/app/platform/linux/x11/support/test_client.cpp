#include "test_client.h"

#include <algorithm>
#include <cstdlib>
#include <quillon/app/platform/linux/x11/x11_reply.h>
#include <quillon/app/platform/linux/x11/xkb_header.h>

#include <xcb/xtest.h>

#include <array>

namespace quillon {

namespace {

constexpr std::uint8_t relative = 0;

} // namespace

TestClient::TestClient(const std::string& display) : m_xcb(xcb_connect(display.c_str(), nullptr)) {
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb.get())).data;
    const X11Reply<xcb_xkb_use_extension_reply_t> xkb(xcb_xkb_use_extension_reply(
        m_xcb.get(), xcb_xkb_use_extension(m_xcb.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
}

void TestClient::sync() {
    xcb_connection_t* xcb = m_xcb.get();
    const X11Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

xcb_window_t TestClient::makeWindow(const WindowOptions& options) {
    const xcb_window_t window = xcb_generate_id(m_xcb.get());
    const std::uint32_t overrideRedirect = options.overrideRedirect ? 1 : 0;
    xcb_create_window(
        m_xcb.get(), XCB_COPY_FROM_PARENT, window, root(), options.x, options.y, options.size, options.size,
        0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &overrideRedirect);
    if (!options.instance.empty() || !options.className.empty()) {
        std::string both(options.instance);
        both.push_back('\0');
        both += options.className;
        both.push_back('\0');
        setText(window, "WM_CLASS", "STRING", both);
    }
    if (!options.title.empty())
        setText(window, "_NET_WM_NAME", "UTF8_STRING", options.title);
    if (options.mapped)
        xcb_map_window(m_xcb.get(), window);
    sync();
    return window;
}

void TestClient::destroy(xcb_window_t window) {
    xcb_destroy_window(m_xcb.get(), window);
    sync();
}

void TestClient::map(xcb_window_t window) {
    xcb_map_window(m_xcb.get(), window);
    sync();
}

void TestClient::unmap(xcb_window_t window) {
    xcb_unmap_window(m_xcb.get(), window);
    sync();
}

xcb_atom_t TestClient::atom(std::string_view name) {
    const auto cookie = xcb_intern_atom(m_xcb.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    const X11Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_xcb.get(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{0};
}

void TestClient::setText(
    xcb_window_t window, std::string_view property, std::string_view type, std::string_view text) {
    xcb_change_property(
        m_xcb.get(), XCB_PROP_MODE_REPLACE, window, atom(property), atom(type), 8,
        static_cast<std::uint32_t>(text.size()), text.data());
    sync();
}

void TestClient::setNumbers(
    xcb_window_t window, std::string_view property, std::string_view type,
    const std::vector<std::uint32_t>& values) {
    xcb_change_property(
        m_xcb.get(), XCB_PROP_MODE_REPLACE, window, atom(property), atom(type), 32,
        static_cast<std::uint32_t>(values.size()), values.data());
    sync();
}

void TestClient::remove(xcb_window_t window, std::string_view property) {
    xcb_delete_property(m_xcb.get(), window, atom(property));
    sync();
}

std::vector<std::uint32_t> TestClient::numbers(xcb_window_t window, std::string_view property) {
    const auto cookie =
        xcb_get_property(m_xcb.get(), 0, window, atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, 1024);
    const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_xcb.get(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

xcb_window_t TestClient::becomeWindowManager() {
    const xcb_window_t manager = makeWindow({.overrideRedirect = true, .mapped = false});
    setNumbers(manager, "_NET_SUPPORTING_WM_CHECK", "WINDOW", {manager});
    setText(manager, "_NET_WM_NAME", "UTF8_STRING", "Stand-in");
    setNumbers(root(), "_NET_SUPPORTED", "ATOM", {atom("_NET_ACTIVE_WINDOW")});
    setNumbers(root(), "_NET_SUPPORTING_WM_CHECK", "WINDOW", {manager});
    return manager;
}

void TestClient::setActiveWindow(xcb_window_t window) {
    setNumbers(root(), "_NET_ACTIVE_WINDOW", "WINDOW", {window});
}

void TestClient::floodActiveWindow(const std::vector<xcb_window_t>& windows, int times) {
    const xcb_atom_t property = atom("_NET_ACTIVE_WINDOW");
    for (int i = 0; i < times; ++i)
        xcb_change_property(
            m_xcb.get(), XCB_PROP_MODE_REPLACE, root(), property, XCB_ATOM_WINDOW, 32, 1,
            &windows[static_cast<std::size_t>(i) % windows.size()]);
    sync();
}

bool TestClient::isMapped(xcb_window_t window) {
    const X11Reply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        m_xcb.get(), xcb_get_window_attributes(m_xcb.get(), window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

xcb_window_t TestClient::windowUnderPointer() {
    const X11Reply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(m_xcb.get(), xcb_query_pointer(m_xcb.get(), root()), nullptr));
    return reply ? reply->child : xcb_window_t{XCB_NONE};
}

void TestClient::setFocus(xcb_window_t window) {
    xcb_set_input_focus(m_xcb.get(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    sync();
}

xcb_window_t TestClient::focus() {
    const X11Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_xcb.get(), xcb_get_input_focus(m_xcb.get()), nullptr));
    return reply ? reply->focus : xcb_window_t{0};
}

void TestClient::fake(std::uint8_t type, std::uint8_t detail, std::int16_t x, std::int16_t y) {
    xcb_test_fake_input(m_xcb.get(), type, detail, XCB_CURRENT_TIME, root(), x, y, 0);
    sync();
}

void TestClient::keyDown(std::uint8_t keyCode) {
    fake(XCB_KEY_PRESS, keyCode);
}

void TestClient::keyUp(std::uint8_t keyCode) {
    fake(XCB_KEY_RELEASE, keyCode);
}

void TestClient::buttonDown(std::uint8_t button) {
    fake(XCB_BUTTON_PRESS, button);
}

void TestClient::buttonUp(std::uint8_t button) {
    fake(XCB_BUTTON_RELEASE, button);
}

bool TestClient::setPointerMapping(const std::vector<std::uint8_t>& buttons) {
    // A mapping tells of every button that the pointer has.
    const X11Reply<xcb_get_pointer_mapping_reply_t> current(
        xcb_get_pointer_mapping_reply(m_xcb.get(), xcb_get_pointer_mapping(m_xcb.get()), nullptr));
    std::vector<std::uint8_t> map(
        xcb_get_pointer_mapping_map(current.get()),
        xcb_get_pointer_mapping_map(current.get()) + xcb_get_pointer_mapping_map_length(current.get()));
    std::ranges::copy(buttons, map.begin());
    const X11Reply<xcb_set_pointer_mapping_reply_t> reply(xcb_set_pointer_mapping_reply(
        m_xcb.get(), xcb_set_pointer_mapping(m_xcb.get(), static_cast<std::uint8_t>(map.size()), map.data()),
        nullptr));
    return reply && reply->status == XCB_MAPPING_STATUS_SUCCESS;
}

void TestClient::moveWindow(xcb_window_t window, std::uint32_t x, std::uint32_t y) {
    const std::array values{x, y};
    xcb_configure_window(m_xcb.get(), window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values.data());
    sync();
}

void TestClient::click(std::uint8_t button) {
    fake(XCB_BUTTON_PRESS, button);
    fake(XCB_BUTTON_RELEASE, button);
}

void TestClient::watchPointer(xcb_window_t window) {
    const std::uint32_t mask = XCB_EVENT_MASK_ENTER_WINDOW;
    xcb_change_window_attributes(m_xcb.get(), window, XCB_CW_EVENT_MASK, &mask);
    sync();
}

std::vector<std::uint8_t> TestClient::pointerComings() {
    sync();
    std::vector<std::uint8_t> modes;
    while (const X11Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb.get())}) {
        if (event->response_type == XCB_ENTER_NOTIFY)
            modes.push_back(reinterpret_cast<const xcb_enter_notify_event_t&>(*event).mode);
    }
    return modes;
}

void TestClient::movePointer(std::int16_t x, std::int16_t y) {
    fake(XCB_MOTION_NOTIFY, relative, x, y);
}

bool TestClient::grabKeyboard() {
    const auto cookie =
        xcb_grab_keyboard(m_xcb.get(), 1, root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const X11Reply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(m_xcb.get(), cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

bool TestClient::grabPointer() {
    const auto cookie = xcb_grab_pointer(
        m_xcb.get(), 1, root(), XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
        XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    const X11Reply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(m_xcb.get(), cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void TestClient::ungrab() {
    xcb_ungrab_keyboard(m_xcb.get(), XCB_CURRENT_TIME);
    xcb_ungrab_pointer(m_xcb.get(), XCB_CURRENT_TIME);
    sync();
}

void TestClient::grabServer() {
    xcb_grab_server(m_xcb.get());
    sync();
}

void TestClient::ungrabServer() {
    xcb_ungrab_server(m_xcb.get());
    sync();
}

void TestClient::setStickyKeys(bool on) {
    constexpr std::uint32_t sticky = XCB_XKB_BOOL_CTRL_STICKY_KEYS;
    constexpr std::array<std::uint8_t, 32> noKeys{};
    xcb_xkb_set_controls(
        m_xcb.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, sticky, on ? sticky : 0, 0, 0,
        0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, noKeys.data());
    sync();
}

void TestClient::tap(std::uint8_t keyCode) {
    keyDown(keyCode);
    keyUp(keyCode);
}

void TestClient::changeSymbol(std::uint8_t keyCode, std::uint32_t symbol) {
    changeSymbols(keyCode, {symbol});
}

void TestClient::changeSymbols(std::uint8_t keyCode, const std::vector<std::uint32_t>& symbols) {
    xcb_change_keyboard_mapping(
        m_xcb.get(), 1, keyCode, static_cast<std::uint8_t>(symbols.size()), symbols.data());
    sync();
}

void TestClient::lockGroup(std::uint8_t group) {
    xcb_xkb_latch_lock_state(m_xcb.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, group, 0, 0, 0);
    sync();
}

void TestClient::setRepeat(std::uint16_t delay, std::uint16_t interval) {
    std::array<std::uint8_t, 32> allKeys{};
    allKeys.fill(0xff);
    constexpr std::uint32_t repeat = XCB_XKB_BOOL_CTRL_REPEAT_KEYS;
    xcb_xkb_set_controls(
        m_xcb.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, repeat, repeat,
        repeat | XCB_XKB_CONTROL_PER_KEY_REPEAT, delay, interval, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
        allKeys.data());
    sync();
}

void TestClient::watchKeys(xcb_window_t window) {
    const std::uint32_t mask = XCB_EVENT_MASK_KEY_PRESS;
    xcb_change_window_attributes(m_xcb.get(), window, XCB_CW_EVENT_MASK, &mask);
    sync();
}

int TestClient::keysSeen() {
    while (const X11Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb.get())})
        m_keysSeen += event->response_type == XCB_KEY_PRESS ? 1 : 0;
    return m_keysSeen;
}

void TestClient::ownSelection(std::string_view name, xcb_window_t owner) {
    xcb_set_selection_owner(m_xcb.get(), owner, atom(name), XCB_CURRENT_TIME);
    sync();
}

} // namespace quillon
