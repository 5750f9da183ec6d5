#pragma once

#include "x11_atoms.h"
#include "x11_extensions.h"
#include "x11_reply.h"

#include <quillon/kit/base/subscription.h>

#include <xcb/xcb.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QSocketNotifier;

namespace quillon {

/// This program's own connection to the X server and its event pump. Of the main thread; needs its event
/// loop.
///
/// A server that goes away is no failure of the program: from then on every reply is absent, every request
/// does nothing and no event comes.
class X11Connection : public std::enable_shared_from_this<X11Connection> {
  public:
    /// The main thread is never held up longer than 5 ms by another process, of which this leaves a little
    /// for the rest of what it does.
    static constexpr std::chrono::milliseconds mainThreadPatience{4};

    /// Connects to `display`, or to $DISPLAY when it is empty. `patience` is how long a reply is waited for.
    /// Waits for the server; nullptr when there is none.
    static std::shared_ptr<X11Connection>
    open(const std::string& display = {}, std::chrono::milliseconds patience = mainThreadPatience);
    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    /// For making requests. Never null.
    xcb_connection_t* xcb() const { return m_xcb.get(); }
    bool isAlive() const;
    int screenNumber() const { return m_screenNumber; }
    xcb_window_t root() const { return m_screen.root; }
    xcb_atom_t atom(X11Name name) const { return m_atoms[static_cast<std::size_t>(name)]; }
    const X11Extensions& extensions() const { return m_extensions; }
    /// The part of a window's number that tells which client made it.
    std::uint32_t clientBase(xcb_window_t window) const { return window & ~m_resourceMask; }

    /// The reply to a request. Waits for it, but not longer than the main thread may: a server that does not
    /// answer in time (another client has grabbed it) makes the reply absent, and those of all requests
    /// until it answers again. See `onCaughtUp`.
    template <class T, class Cookie>
    X11Reply<T> reply(Cookie cookie) {
        return X11Reply<T>(static_cast<T*>(waitForReply(cookie.sequence)));
    }
    /// Whether the server has let us wait and not answered since.
    bool isLate() const { return m_late; }
    /// Sends the requests that were made; once it answers again when the server is late.
    void flush();

    /// Called with every event. What an event calls for is only noted here, and asked for when `onDrained`
    /// tells: other clients can cause thousands of events at once.
    Subscription onEvent(std::function<void(const xcb_generic_event_t&)> callback) {
        return m_event.subscribe(std::move(callback));
    }
    /// Called after events, once all of those that have arrived were told.
    Subscription onDrained(std::function<void()> callback) {
        return m_drained.subscribe(std::move(callback));
    }
    /// Called when a server that was late answers again.
    Subscription onCaughtUp(std::function<void()> callback) {
        return m_caughtUp.subscribe(std::move(callback));
    }
    /// Called once, when the server has gone away.
    Subscription onLost(std::function<void()> callback) { return m_lost.subscribe(std::move(callback)); }
    /// Has the server send the events of `mask` (XCB_EVENT_MASK_…) of a window while the handle lives,
    /// beside whatever else asked for events of it.
    Subscription selectEvents(xcb_window_t window, std::uint32_t mask);

  private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    using XcbPointer = std::unique_ptr<xcb_connection_t, Disconnect>;

    X11Connection(
        XcbPointer xcb, int screenNumber, const xcb_screen_t& screen, std::chrono::milliseconds patience);
    void internAtoms();
    void startPump();

    void* waitForReply(unsigned sequence);
    std::optional<void*> poll(unsigned sequence);
    void pump();
    void queuePump();
    void readEvents();
    void tellEvents();
    void keep(X11Reply<xcb_generic_event_t> event);
    void queueWhatWasReadBeside();
    void loseServer();
    void applySelection(xcb_window_t window);

    XcbPointer m_xcb;
    int m_screenNumber;
    xcb_screen_t m_screen;
    std::chrono::milliseconds m_patience;
    std::uint32_t m_resourceMask;
    std::array<xcb_atom_t, x11Names.size()> m_atoms{};
    X11Extensions m_extensions;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::deque<X11Reply<xcb_generic_event_t>> m_queue;
    bool m_pumpQueued = false;
    bool m_late = false;
    bool m_lostTold = false;
    std::uint64_t m_nextSelection = 0;
    std::map<std::pair<xcb_window_t, std::uint64_t>, std::uint32_t> m_selections;
    Event<const xcb_generic_event_t&> m_event;
    Event<> m_drained;
    Event<> m_caughtUp;
    Event<> m_lost;
};

} // namespace quillon
