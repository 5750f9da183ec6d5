#include "tray_manager.h"

#include <quillon/app/platform/linux/x11/x11_property.h>

#include <string>
#include <utility>

namespace quillon {

namespace {

constexpr std::uint32_t bytesPerNumber = 4;
constexpr std::uint32_t mostColours = 12;

} // namespace

TrayManager::TrayManager(std::shared_ptr<X11Connection> x11) : m_x11(std::move(x11)) {
    // Managers tell everybody who asked for this of the root window.
    m_rootEvents = m_x11->selectEvents(m_x11->root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    m_events = m_x11->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
    m_drained = m_x11->onDrained([this] { drained(); });
    m_caughtUp = m_x11->onCaughtUp([this] { drained(); });
    look();
}

void TrayManager::handle(const xcb_generic_event_t& event) {
    constexpr std::uint8_t sentByClient = 0x80;
    switch (event.response_type & ~sentByClient) {
    case XCB_CLIENT_MESSAGE: {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == m_x11->atom(X11Name::manager) && message.data.data32[1] == m_selection)
            m_hasToLook = true;
        break;
    }
    case XCB_DESTROY_NOTIFY:
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == m_window
            && m_window != XCB_NONE)
            m_hasToLook = true;
        break;
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == m_window && change.atom == m_x11->atom(X11Name::netSystemTrayColors))
            m_hasToReadColours = true;
        break;
    }
    default: break;
    }
}

void TrayManager::drained() {
    if (m_hasToLook)
        look();
    if (!std::exchange(m_hasToReadColours, false))
        return;
    readColours();
    m_coloursChanged.emit();
}

void TrayManager::look() {
    if (m_selection == XCB_ATOM_NONE) {
        const std::string name = "_NET_SYSTEM_TRAY_S" + std::to_string(m_x11->screenNumber());
        const auto atom = m_x11->reply<xcb_intern_atom_reply_t>(
            xcb_intern_atom(m_x11->xcb(), 0, static_cast<std::uint16_t>(name.size()), name.data()));
        m_selection = atom ? atom->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }
    const auto owner =
        m_x11->reply<xcb_get_selection_owner_reply_t>(xcb_get_selection_owner(m_x11->xcb(), m_selection));
    m_hasToLook = m_x11->isLate(); // then once it answers
    if (owner)
        adopt(owner->owner);
}

void TrayManager::adopt(xcb_window_t owner) {
    if (owner == m_window)
        return;
    m_window = owner;
    m_visual = 0;
    m_colours.clear();
    m_ownerEvents.reset();
    if (owner != XCB_NONE) {
        m_ownerEvents =
            m_x11->selectEvents(owner, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
        auto visual =
            X11Property::ask(*m_x11, owner, m_x11->atom(X11Name::netSystemTrayVisual), bytesPerNumber);
        visual.receive(*m_x11);
        m_visual = visual.number().value_or(0);
        readColours();
        // Gone already: nobody tells of its end any more.
        if (!visual.isAnswered())
            m_window = XCB_NONE;
    }
    m_changed.emit();
}

void TrayManager::readColours() {
    auto colours = X11Property::ask(
        *m_x11, m_window, m_x11->atom(X11Name::netSystemTrayColors), bytesPerNumber * mostColours);
    colours.receive(*m_x11);
    m_colours = colours.numbers();
}

} // namespace quillon
