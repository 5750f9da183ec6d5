#include "menu_popups.h"

#include "menu_window.h"
#include "x11_reply.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// How long after a button went down its menu may come to the screen.
constexpr auto attempt = 1500ms;
/// How long after the last press somebody may still be choosing from the menus that are open.
constexpr auto interest = 30s;
/// How often the pointer's place is asked for meanwhile. Events would tell of every move of a fast mouse, and
/// of none by which another client puts the pointer somewhere.
constexpr auto glanceInterval = 50ms;
/// Menus, and as many windows that are not the front application's; more of them do not come by being
/// clicked.
constexpr std::size_t mostWindows = 32;
/// Of the windows that came to the screen together, how many are looked at, the last ones: each of them is a
/// question to the server, and there may be thousands.
constexpr std::ptrdiff_t mostAtOnce = 8;
constexpr std::uint32_t lastPlainButton = 3;
constexpr unsigned anyPlainButton = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;
constexpr std::uint8_t sentByClient = 0x80;

} // namespace

MenuPopups::MenuPopups(
    std::shared_ptr<X11Connection> x11, std::shared_ptr<RawInput> input, FrontApplication& front,
    MenuPopupsObserver& observer)
    : m_x11(std::move(x11)), m_input(std::move(input)), m_front(front), m_observer(&observer) {
    m_attempt.setSingleShot(true);
    m_attempt.setInterval(attempt);
    m_attempt.callOnTimeout([this] { track(); });
    m_interest.setSingleShot(true);
    m_interest.setInterval(interest);
    m_interest.callOnTimeout([this] { follow(); });
    m_glances.setInterval(glanceInterval);
    m_glances.callOnTimeout([this] { tellPlace(); });
    m_activations = m_front.onActivated([this](const RunningApp&) { m_frontChanged = true; });
    m_events = m_x11->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
    m_drained = m_x11->onDrained([this] { drained(); });
    m_caughtUp = m_x11->onCaughtUp([this] { caughtUp(); });
    m_lost = m_x11->onLost([this] {
        m_popups.clear();
        m_notes.clear();
        drained();
    });
    m_presses = m_input->onButtonPress([this](const RawPress& press) {
        if (press.detail <= lastPlainButton)
            m_notes.push_back({Note::Kind::pressed});
        else if (isWheelButton(press.detail))
            scrolled();
    });
}

void MenuPopups::stop() {
    m_observer = nullptr;
    for (Subscription* subscription :
         {&m_presses, &m_activations, &m_events, &m_drained, &m_caughtUp, &m_lost})
        subscription->reset();
    m_notes.clear();
    m_popups.clear();
    m_attempt.stop();
    follow();
    track();
}

void MenuPopups::handle(const xcb_generic_event_t& event) {
    if (!m_windows || (event.response_type & sentByClient) != 0)
        return;
    switch (event.response_type) {
    case XCB_MAP_NOTIFY: {
        const auto& map = reinterpret_cast<const xcb_map_notify_event_t&>(event);
        if (map.event == m_x11->root() && map.override_redirect != 0)
            m_notes.push_back({Note::Kind::shown, map.window});
        break;
    }
    case XCB_UNMAP_NOTIFY: {
        const auto& unmap = reinterpret_cast<const xcb_unmap_notify_event_t&>(event);
        if (unmap.event == m_x11->root())
            m_notes.push_back({Note::Kind::gone, unmap.window});
        break;
    }
    case XCB_DESTROY_NOTIFY: {
        const auto& destroy = reinterpret_cast<const xcb_destroy_notify_event_t&>(event);
        if (destroy.event == m_x11->root())
            m_notes.push_back({Note::Kind::gone, destroy.window});
        break;
    }
    case XCB_CONFIGURE_NOTIFY: {
        const auto& configure = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        const auto popup = std::ranges::find(m_popups, configure.window, &Popup::window);
        if (configure.event != m_x11->root() || popup == m_popups.end())
            break;
        const Rect frame{
            static_cast<double>(configure.x), static_cast<double>(configure.y),
            static_cast<double>(configure.width + 2 * configure.border_width),
            static_cast<double>(configure.height + 2 * configure.border_width)};
        if (std::exchange(popup->frame, frame) != frame)
            popup->opening = ++m_openings;
        break;
    }
    default: break;
    }
}

void MenuPopups::drained() {
    const std::vector<Note> notes = std::exchange(m_notes, {});
    auto skipped = std::ranges::count(notes, Note::Kind::shown, &Note::kind) - mostAtOnce;
    for (const Note& note : notes)
        if (note.kind != Note::Kind::shown || skipped-- <= 0)
            handle(note);
    if (std::exchange(m_frontChanged, false))
        reconsider();
    m_frontNow.reset();
    if (m_wasOpen && m_popups.empty()) {
        m_wasOpen = false;
        m_lastPlace.reset();
        follow();
        track();
        if (m_observer)
            m_observer->menusClosed();
    }
}

void MenuPopups::handle(const Note& note) {
    switch (note.kind) {
    case Note::Kind::pressed: pressed(); break;
    case Note::Kind::released: released(note.subject); break;
    case Note::Kind::shown: consider(std::span(&note.subject, 1)); break;
    case Note::Kind::gone: gone(note.subject); break;
    }
}

void MenuPopups::pressed() {
    m_attempt.start();
    m_interest.start();
    const bool wasTracking = static_cast<bool>(m_windows);
    track();
    // What was open before is not told by events, and its menu may be open by now.
    if (!wasTracking)
        lookAtTopmost();
    follow();
    if (m_popups.empty())
        return;
    const auto at = pointer();
    if (at && m_observer)
        m_observer->pointerPressed(*at);
}

void MenuPopups::released(std::uint32_t button) {
    if (button != m_leftButton || m_popups.empty())
        return;
    const auto at = pointer();
    if (at && m_observer)
        m_observer->leftButtonReleased(*at);
}

/// Asks about all of them before it waits for the first answer.
void MenuPopups::consider(std::span<const xcb_window_t> windows) {
    std::vector<BareWindowQuestion> questions;
    for (const xcb_window_t window : windows)
        if (std::ranges::find(m_popups, window, &Popup::window) == m_popups.end())
            questions.emplace_back(*m_x11, window);
    for (BareWindowQuestion& question : questions)
        if (const auto bare = question.receive(*m_x11); bare && bare->isMenu)
            consider(*bare);
    if (m_x11->isLate() && m_unanswered.size() < mostWindows)
        m_unanswered.insert(m_unanswered.end(), windows.begin(), windows.end());
}

void MenuPopups::lookAtTopmost() {
    const std::vector<xcb_window_t> windows = topmostBareWindows(*m_x11);
    m_hasToLook = m_x11->isLate(); // then once it answers
    consider(windows);
}

/// What the server did not tell in time it may tell now.
void MenuPopups::caughtUp() {
    if (!isTracking())
        return;
    m_frontNow.reset();
    reconsider();
    consider(std::exchange(m_unanswered, {}));
    if (std::exchange(m_hasToLook, false))
        lookAtTopmost();
}

/// Takes a window for a menu of the front application if it is one.
void MenuPopups::consider(const BareWindow& bare) {
    if (m_popups.size() == mostWindows)
        return;
    const xcb_window_t window = bare.window;
    const std::optional<RunningApp>& front = frontNow();
    // A game's one window may be such a window too.
    if (front && std::ranges::find(front->windows, window, &AppWindow::id) != front->windows.end())
        return;
    const bool isFronts =
        front && !front->windows.empty()
        && (bare.pid == front->pid
            || m_x11->clientBase(window)
                   == m_x11->clientBase(static_cast<xcb_window_t>(front->windows.front().id)));
    if (!isFronts) {
        if (m_others.size() < mostWindows && std::ranges::find(m_others, window) == m_others.end())
            m_others.push_back(window);
        return;
    }
    std::erase(m_others, window);
    m_popups.push_back({window, ++m_openings, bare.frame, pointer().value_or(Point{})});
    if (std::exchange(m_wasOpen, true))
        return;
    follow();
    lookAtMapping(); // answered once the server tells of buttons that are let go
    if (m_observer)
        m_observer->menusOpened(*front);
}

/// A click can open a window's menu before the window manager brings that window to the front.
void MenuPopups::reconsider() {
    consider(std::exchange(m_others, {}));
}

void MenuPopups::scrolled() {
    for (Popup& popup : m_popups)
        popup.opening = ++m_openings;
}

void MenuPopups::gone(xcb_window_t window) {
    std::erase(m_others, window);
    std::erase(m_unanswered, window);
    std::erase_if(m_popups, [window](const Popup& popup) { return popup.window == window; });
}

/// Follows the pointer while menus are open and somebody may be choosing from them.
void MenuPopups::follow() {
    if (m_popups.empty() || !m_interest.isActive()) {
        m_releases.reset();
        m_glances.stop();
        return;
    }
    if (!m_releases)
        m_releases = m_input->onButtonRelease([this](const RawPress& release) {
            if (release.detail <= lastPlainButton)
                m_notes.push_back({Note::Kind::released, release.detail});
        });
    if (!m_glances.isActive())
        m_glances.start();
}

void MenuPopups::tellPlace() {
    const auto at = pointer();
    if (at && m_observer)
        m_observer->pointerSeen(*at, m_isHeld);
}

/// Has the server tell which windows come and go, for as long as that matters.
void MenuPopups::track() {
    if (!isTracking()) {
        m_windows.reset();
        m_others.clear();
        m_unanswered.clear();
        m_hasToLook = false;
    } else if (!m_windows) {
        m_windows = m_x11->selectEvents(m_x11->root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    }
}

/// Raw events number the buttons as the device does, before they are swapped for the left hand.
void MenuPopups::lookAtMapping() {
    const auto mapping = m_x11->reply<xcb_get_pointer_mapping_reply_t>(xcb_get_pointer_mapping(m_x11->xcb()));
    if (!mapping)
        return;
    const auto* map = xcb_get_pointer_mapping_map(mapping.get());
    for (int i = 0; i < xcb_get_pointer_mapping_map_length(mapping.get()); ++i)
        if (map[i] == 1) {
            m_leftButton = static_cast<std::uint32_t>(i) + 1;
            return;
        }
}

const std::optional<RunningApp>& MenuPopups::frontNow() {
    if (!m_frontNow)
        m_frontNow = m_front.current();
    return *m_frontNow;
}

std::optional<Point> MenuPopups::pointer() {
    const auto reply =
        m_x11->reply<xcb_query_pointer_reply_t>(xcb_query_pointer(m_x11->xcb(), m_x11->root()));
    if (reply) {
        m_lastPlace = Point{static_cast<double>(reply->root_x), static_cast<double>(reply->root_y)};
        m_isHeld = (reply->mask & anyPlainButton) != 0;
    }
    return m_lastPlace;
}

} // namespace quillon
