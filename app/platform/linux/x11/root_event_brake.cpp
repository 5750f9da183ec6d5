#include "root_event_brake.h"

#include "toolkit_connection.h"

#include <QByteArray>
#include <QCoreApplication>

#include <xcb/xcb.h>

#include <array>
#include <chrono>
#include <cstring>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds interval{100};

} // namespace

RootEventBrake::RootEventBrake() {
    xcb_connection_t* const toolkit = toolkitConnection();
    if (!toolkit)
        return;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(toolkit)).data->root;
    m_ownWindow = xcb_generate_id(toolkit);
    xcb_create_window(
        toolkit, 0, m_ownWindow, m_root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
        0, nullptr);
    m_interval.setSingleShot(true);
    m_interval.setInterval(interval);
    m_interval.callOnTimeout([this] { passOnHeld(); });
    QCoreApplication::instance()->installNativeEventFilter(this);
}

RootEventBrake::~RootEventBrake() {
    if (xcb_connection_t* const toolkit = toolkitConnection(); toolkit && m_ownWindow != 0)
        xcb_destroy_window(toolkit, m_ownWindow);
}

bool RootEventBrake::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    // One that a client sent, as this one does below, has another bit set.
    if (event.response_type != XCB_PROPERTY_NOTIFY)
        return false;
    const auto& property = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (property.window != m_root)
        return false;
    if (!m_interval.isActive())
        m_interval.start();
    return !m_gate.passes(property.atom);
}

void RootEventBrake::passOnHeld() {
    xcb_connection_t* const toolkit = toolkitConnection();
    for (const xcb_atom_t atom : m_gate.endInterval()) {
        xcb_property_notify_event_t event{};
        event.response_type = XCB_PROPERTY_NOTIFY;
        event.window = m_root;
        event.atom = atom;
        event.time = XCB_CURRENT_TIME;
        event.state = XCB_PROPERTY_NEW_VALUE;
        // The server reads 32 bytes of every event.
        std::array<char, 32> bytes{};
        std::memcpy(bytes.data(), &event, sizeof event);
        xcb_send_event(toolkit, 0, m_ownWindow, XCB_EVENT_MASK_NO_EVENT, bytes.data());
    }
    xcb_flush(toolkit);
}

} // namespace quillon
