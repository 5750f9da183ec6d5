#include "active_window.h"

#include "window_manager.h"
#include "x11_property.h"
#include "x11_queries.h"

#include <utility>

namespace quillon {

namespace {

constexpr std::uint32_t one = 4;
constexpr int focusAttempts = 4;

} // namespace

ActiveWindow::ActiveWindow(std::shared_ptr<X11Connection> x11) : m_x11(std::move(x11)) {
    m_rootEvents = m_x11->selectEvents(m_x11->root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    m_events = m_x11->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
    m_drained = m_x11->onDrained([this] { drained(); });
    m_caughtUp = m_x11->onCaughtUp([this] {
        findManager();
        update();
    });
    m_lost = m_x11->onLost([this] { set(XCB_NONE); });
    findManager();
    update();
}

void ActiveWindow::handle(const xcb_generic_event_t& event) {
    switch (event.response_type) {
    case XCB_PROPERTY_NOTIFY: {
        const auto& property = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (property.window == m_x11->root())
            propertyChanged(property.atom);
        break;
    }
    case XCB_DESTROY_NOTIFY:
        windowGone(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT: m_isStale = m_isStale || m_manager == XCB_NONE; break;
    default: break;
    }
}

void ActiveWindow::drained() {
    if (std::exchange(m_managerIsStale, false)) {
        findManager();
        m_isStale = true;
    }
    if (std::exchange(m_isStale, false))
        update();
}

void ActiveWindow::windowGone(xcb_window_t window) {
    m_managerIsStale = m_managerIsStale || window == m_manager;
    m_isStale = m_isStale || window == m_focus;
}

void ActiveWindow::propertyChanged(xcb_atom_t property) {
    if (property == m_x11->atom(X11Name::netSupported)
        || property == m_x11->atom(X11Name::netSupportingWmCheck))
        m_managerIsStale = true;
    else if (property == m_x11->atom(X11Name::netActiveWindow))
        m_isStale = true;
}

void ActiveWindow::findManager() {
    m_manager = windowManagerThatTells(*m_x11);
    if (m_manager == XCB_NONE) {
        m_managerEvents.reset();
        return;
    }
    m_managerEvents = m_x11->selectEvents(m_manager, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    m_focusEvents.reset();
    m_focus = XCB_NONE;
}

void ActiveWindow::update() {
    if (m_x11->isLate())
        return;
    const xcb_window_t window = m_manager != XCB_NONE ? managersAnswer() : focusedWindow();
    if (!m_x11->isLate())
        set(window);
}

xcb_window_t ActiveWindow::managersAnswer() {
    auto& x11 = *m_x11;
    auto property = X11Property::ask(x11, x11.root(), x11.atom(X11Name::netActiveWindow), one);
    property.receive(x11);
    const xcb_window_t window = property.number().value_or(XCB_NONE);
    if (window != XCB_NONE)
        return window;
    const xcb_window_t focus = inputFocus(x11).value_or(XCB_NONE);
    return isOwnPanel(focus) ? m_current : XCB_NONE;
}

xcb_window_t ActiveWindow::focusedWindow() {
    auto focus = inputFocus(*m_x11);
    // It may move on before its events are selected; once they are, it tells.
    for (int attempt = 0; focus && attempt < focusAttempts; ++attempt) {
        watchFocus(*focus);
        const auto now = inputFocus(*m_x11);
        if (now == focus)
            break;
        focus = now;
    }
    if (!focus)
        return m_current;
    if (!isWindow(*focus))
        return XCB_NONE;
    const xcb_window_t window = applicationWindowOf(*m_x11, *focus);
    return isOwnPanel(window) ? m_current : window;
}

/// A window that has the focus tells when it loses it, whoever gets it; the root window tells when none had
/// it.
void ActiveWindow::watchFocus(xcb_window_t focus) {
    if (std::exchange(m_focus, focus) == focus && m_focusEvents)
        return;
    m_focusEvents =
        isWindow(focus)
            ? m_x11->selectEvents(focus, XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY)
            : m_x11->selectEvents(m_x11->root(), XCB_EVENT_MASK_FOCUS_CHANGE);
}

bool ActiveWindow::isWindow(xcb_window_t focus) const {
    return focus > XCB_INPUT_FOCUS_POINTER_ROOT && focus != m_x11->root();
}

bool ActiveWindow::isOwnPanel(xcb_window_t window) {
    if (!isWindow(window))
        return false;
    const auto attributes =
        m_x11->reply<xcb_get_window_attributes_reply_t>(xcb_get_window_attributes(m_x11->xcb(), window));
    return attributes && attributes->override_redirect != 0 && isOfThisProcess(*m_x11, window);
}

void ActiveWindow::set(xcb_window_t window) {
    if (std::exchange(m_current, window) != window)
        m_changed.emit();
}

} // namespace quillon
