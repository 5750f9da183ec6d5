#include "x11_foreground.h"

#include "toolkit_connection.h"
#include "x11_property.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

/// What kind of program asks: one that acts for the user, as a task list does.
constexpr std::uint32_t actsForUser = 2;
constexpr std::size_t messageBytes = 20;
constexpr std::size_t longestToken = 512;
constexpr std::string_view currentDesktop = "_NET_CURRENT_DESKTOP";
constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
constexpr std::uint32_t one = 4;

} // namespace

X11Foreground::X11Foreground(std::shared_ptr<X11Connection> x11, xcb_connection_t* maker)
    : m_x11(std::move(x11)), m_maker(maker),
      m_currentDesktop(xcb_intern_atom(
          m_x11->xcb(), 0, static_cast<std::uint16_t>(currentDesktop.size()), currentDesktop.data())) {
    m_events = m_x11->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
}

X11Foreground::~X11Foreground() {
    m_clockEvents.reset();
    if (m_clock != XCB_NONE && m_x11->isAlive()) {
        xcb_destroy_window(m_x11->xcb(), m_clock);
        m_x11->flush();
    }
}

void X11Foreground::bring(std::uintptr_t window) {
    m_wanted = static_cast<xcb_window_t>(window);
    askForTime();
}

/// The server tells its time only with events, such as that of a property that was written.
void X11Foreground::askForTime() {
    xcb_connection_t* const xcb = m_x11->xcb();
    if (m_clock == XCB_NONE) {
        m_clock = xcb_generate_id(xcb);
        xcb_create_window(
            xcb, 0, m_clock, m_x11->root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
            XCB_COPY_FROM_PARENT, 0, nullptr);
        m_clockEvents = m_x11->selectEvents(m_clock, XCB_EVENT_MASK_PROPERTY_CHANGE);
    }
    xcb_change_property(
        xcb, XCB_PROP_MODE_APPEND, m_clock, m_x11->atom(X11Name::netWmUserTime), XCB_ATOM_CARDINAL, 32, 0,
        nullptr);
    m_x11->flush();
}

void X11Foreground::handle(const xcb_generic_event_t& event) {
    if (event.response_type != XCB_PROPERTY_NOTIFY)
        return;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.window == m_clock && m_wanted != XCB_NONE)
        activate(std::exchange(m_wanted, XCB_NONE), change.time);
}

void X11Foreground::moveHere(xcb_window_t window) {
    if (!m_currentDesktopName) {
        const auto name = m_x11->reply<xcb_intern_atom_reply_t>(m_currentDesktop);
        m_currentDesktopName = name ? name->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    if (*m_currentDesktopName == XCB_ATOM_NONE)
        return;
    const xcb_atom_t desktopOf = m_x11->atom(X11Name::netWmDesktop);
    X11Property shown = X11Property::ask(*m_x11, m_x11->root(), *m_currentDesktopName, one);
    X11Property own = X11Property::ask(*m_x11, window, desktopOf, one);
    shown.receive(*m_x11);
    own.receive(*m_x11);
    if (!shown.number() || !own.number() || own.number() == shown.number() || own.number() == everyDesktop)
        return;
    const std::array<std::uint32_t, 5> data{*shown.number(), actsForUser, 0, 0, 0};
    sendToRoot(window, desktopOf, 32, data.data());
}

void X11Foreground::activate(xcb_window_t window, xcb_timestamp_t time) {
    moveHere(window);
    xcb_change_property(
        maker(), XCB_PROP_MODE_REPLACE, window, m_x11->atom(X11Name::netWmUserTime), XCB_ATOM_CARDINAL, 32, 1,
        &time);
    const std::array<std::uint32_t, 5> data{actsForUser, time, XCB_NONE, 0, 0};
    sendToRoot(window, m_x11->atom(X11Name::netActiveWindow), 32, data.data());
    if (!m_token.empty())
        endStart(std::exchange(m_token, {}));
    xcb_flush(maker());
}

/// As desktops understand it that show how long a start takes: a text in pieces, zero at its end.
void X11Foreground::endStart(const std::string& token) {
    std::string text = "remove: ID=\"";
    for (const char character : token.substr(0, longestToken)) {
        if (character == '"' || character == '\\')
            text += '\\';
        text += character;
    }
    text += '"';
    X11Name type = X11Name::netStartupInfoBegin;
    for (std::size_t from = 0; from <= text.size(); from += messageBytes) {
        std::array<char, messageBytes> piece{};
        std::memcpy(piece.data(), text.data() + from, std::min(messageBytes, text.size() - from));
        sendToRoot(m_clock, m_x11->atom(std::exchange(type, X11Name::netStartupInfo)), 8, piece.data());
    }
}

void X11Foreground::sendToRoot(xcb_window_t window, xcb_atom_t type, std::uint8_t format, const void* data) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = format;
    message.window = window;
    message.type = type;
    std::memcpy(&message.data, data, messageBytes);
    const bool isForManager = format == 32;
    xcb_send_event(
        maker(), 0, m_x11->root(),
        isForManager ? XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT
                     : XCB_EVENT_MASK_PROPERTY_CHANGE,
        reinterpret_cast<const char*>(&message));
}

/// What is said of a window must come behind its making, and the server keeps no order between connections.
xcb_connection_t* X11Foreground::maker() const {
    if (m_maker != nullptr)
        return m_maker;
    xcb_connection_t* const toolkit = toolkitConnection();
    return toolkit != nullptr ? toolkit : m_x11->xcb();
}

} // namespace quillon
