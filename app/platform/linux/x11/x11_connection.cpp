#include "x11_connection.h"

#include <QSocketNotifier>

#include <chrono>

#include <poll.h>
#include <xcb/xcbext.h>

namespace quillon {

namespace {

/// The events that are read in one go; what a busy client goes on sending waits until the event loop had its
/// turn.
constexpr int mostEventsAtOnce = 1024;

const xcb_screen_t* screenOf(xcb_connection_t* connection, int number) {
    for (auto it = xcb_setup_roots_iterator(xcb_get_setup(connection)); it.rem > 0; xcb_screen_next(&it)) {
        if (number-- == 0)
            return it.data;
    }
    return nullptr;
}

} // namespace

std::shared_ptr<X11Connection>
X11Connection::open(const std::string& display, std::chrono::milliseconds patience) {
    int screenNumber = 0;
    XcbPointer xcb(xcb_connect(display.empty() ? nullptr : display.c_str(), &screenNumber));
    if (xcb_connection_has_error(xcb.get()) != 0)
        return nullptr;
    const xcb_screen_t* screen = screenOf(xcb.get(), screenNumber);
    if (screen == nullptr)
        return nullptr;
    const std::shared_ptr<X11Connection> connection(
        new X11Connection(std::move(xcb), screenNumber, *screen, patience));
    connection->m_extensions = queryExtensions(connection->xcb());
    connection->internAtoms();
    connection->startPump();
    return connection->isAlive() ? connection : nullptr;
}

X11Connection::X11Connection(
    XcbPointer xcb, int screenNumber, const xcb_screen_t& screen, std::chrono::milliseconds patience)
    : m_xcb(std::move(xcb)), m_screenNumber(screenNumber), m_screen(screen), m_patience(patience),
      m_resourceMask(xcb_get_setup(m_xcb.get())->resource_id_mask) {}

X11Connection::~X11Connection() = default;

void X11Connection::internAtoms() {
    std::array<xcb_intern_atom_cookie_t, x11Names.size()> cookies{};
    for (std::size_t i = 0; i < x11Names.size(); ++i)
        cookies[i] =
            xcb_intern_atom(xcb(), 0, static_cast<std::uint16_t>(x11Names[i].size()), x11Names[i].data());
    for (std::size_t i = 0; i < x11Names.size(); ++i) {
        const X11Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(xcb(), cookies[i], nullptr));
        if (reply)
            m_atoms[i] = reply->atom;
    }
}

void X11Connection::startPump() {
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(xcb()), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { pump(); });
}

bool X11Connection::isAlive() const {
    return xcb_connection_has_error(xcb()) == 0;
}

void X11Connection::pump() {
    const auto self = shared_from_this();
    m_pumpQueued = false;
    readEvents();
    const bool alive = isAlive();
    if (alive && std::exchange(m_late, false)) {
        flush();
        m_caughtUp.emit();
    }
    tellEvents();
    if (!alive)
        loseServer();
}

void X11Connection::readEvents() {
    for (int count = 0; count < mostEventsAtOnce; ++count) {
        auto* event = xcb_poll_for_event(xcb());
        if (event == nullptr)
            return;
        keep(X11Reply<xcb_generic_event_t>(event));
    }
    queuePump();
}

void X11Connection::tellEvents() {
    if (m_queue.empty())
        return;
    while (!m_queue.empty()) {
        const auto event = std::move(m_queue.front());
        m_queue.pop_front();
        m_event.emit(*event);
    }
    m_drained.emit();
}

void X11Connection::queuePump() {
    if (!std::exchange(m_pumpQueued, true))
        QMetaObject::invokeMethod(
            m_notifier.get(), [this] { pump(); }, Qt::QueuedConnection);
}

void X11Connection::keep(X11Reply<xcb_generic_event_t> event) {
    constexpr std::uint8_t error = 0;
    if (event->response_type != error)
        m_queue.push_back(std::move(event));
}

void X11Connection::flush() {
    // Once the socket is full, after some seventy requests, sending waits without a limit.
    if (m_late)
        return;
    xcb_flush(xcb());
    queueWhatWasReadBeside();
}

void X11Connection::loseServer() {
    m_notifier->setEnabled(false);
    if (!std::exchange(m_lostTold, true))
        m_lost.emit();
}

std::optional<void*> X11Connection::poll(unsigned sequence) {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    const bool answered = xcb_poll_for_reply(xcb(), sequence, &reply, &error) != 0;
    std::free(error);
    return answered ? std::optional(reply) : std::nullopt;
}

void* X11Connection::waitForReply(unsigned sequence) {
    if (m_late) {
        // Only the pump reads now: what is read here would not wake it any more.
        xcb_discard_reply(xcb(), sequence);
        return nullptr;
    }
    flush();
    const auto deadline = std::chrono::steady_clock::now() + m_patience;
    std::optional<void*> answer = poll(sequence);
    while (!answer && isAlive()) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        m_late = left.count() <= 0;
        if (m_late)
            break;
        pollfd waiting{xcb_get_file_descriptor(xcb()), POLLIN, 0};
        ::poll(&waiting, 1, static_cast<int>(left.count()));
        answer = poll(sequence);
    }
    if (!answer)
        xcb_discard_reply(xcb(), sequence);
    queueWhatWasReadBeside();
    return answer.value_or(nullptr);
}

void X11Connection::queueWhatWasReadBeside() {
    while (auto* event = xcb_poll_for_queued_event(xcb()))
        keep(X11Reply<xcb_generic_event_t>(event));
    // None of this makes the socket readable again.
    if (!m_queue.empty() || !isAlive())
        queuePump();
}

Subscription X11Connection::selectEvents(xcb_window_t window, std::uint32_t mask) {
    const std::pair key(window, m_nextSelection++);
    m_selections.emplace(key, mask);
    applySelection(window);
    return Subscription([weak = weak_from_this(), key] {
        if (const auto self = weak.lock()) {
            self->m_selections.erase(key);
            self->applySelection(key.first);
        }
    });
}

void X11Connection::applySelection(xcb_window_t window) {
    std::uint32_t mask = XCB_EVENT_MASK_NO_EVENT;
    for (auto it = m_selections.lower_bound({window, 0});
         it != m_selections.end() && it->first.first == window; ++it)
        mask |= it->second;
    xcb_change_window_attributes(xcb(), window, XCB_CW_EVENT_MASK, &mask);
    flush();
}

} // namespace quillon
