#pragma once

#include "raw_input.h"
#include "x11_connection.h"

#include <quillon/app/ports/front_application.h>
#include <quillon/app/ports/geometry.h>

#include <QTimer>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quillon {

struct BareWindow;

/// Is told what is done with the open menus of the front application, in the order in which the server did
/// it. Places are in the pixels of the display.
class MenuPopupsObserver {
  public:
    virtual ~MenuPopupsObserver() = default;

    /// A menu opened while none was open.
    virtual void menusOpened(const RunningApp& app) = 0;
    /// A button went down.
    virtual void pointerPressed(Point at) = 0;
    /// The pointer is there, and a button is held down or not; told twenty times a second, whether it moves
    /// or not, for half a minute after each press.
    virtual void pointerSeen(Point at, bool isHeld) = 0;
    /// The left button was let go.
    virtual void leftButtonReleased(Point at) = 0;
    /// No menu is open any more.
    virtual void menusClosed() = 0;
};

/// The windows of the front application's open menus. A menu is opened by a button that goes down, or is open
/// by then, so until one does nothing is asked and nothing is looked at; then, for a moment, which windows
/// come to the screen.
class MenuPopups {
  public:
    /// The window of an open menu.
    struct Popup {
        xcb_window_t window = XCB_NONE;
        std::uint64_t opening = 0; ///< another one whenever it opens, changes its place, or may have scrolled
        Rect frame;
        Point openedFrom; ///< where the pointer was when it came to the screen
    };

    /// `front` and `observer` outlive it.
    MenuPopups(
        std::shared_ptr<X11Connection> x11, std::shared_ptr<RawInput> input, FrontApplication& front,
        MenuPopupsObserver& observer);
    MenuPopups(const MenuPopups&) = delete;
    MenuPopups& operator=(const MenuPopups&) = delete;

    /// Ends it, also while it tells its observer something.
    void stop();

    /// The open menus, the topmost last.
    const std::vector<Popup>& popups() const { return m_popups; }

  private:
    /// What happened and is to be looked into once everything that has arrived was told.
    struct Note {
        enum class Kind : std::uint8_t { pressed, released, shown, gone } kind;
        std::uint32_t subject = 0; ///< the button that was let go, or the window
    };

    void handle(const xcb_generic_event_t& event);
    void drained();
    void handle(const Note& note);
    void pressed();
    void released(std::uint32_t button);
    void consider(std::span<const xcb_window_t> windows);
    void consider(const BareWindow& bare);
    void lookAtTopmost();
    void reconsider();
    void caughtUp();
    void gone(xcb_window_t window);
    void scrolled();
    void follow();
    void tellPlace();
    bool isTracking() const { return m_attempt.isActive() || !m_popups.empty(); }
    void track();
    void lookAtMapping();
    const std::optional<RunningApp>& frontNow();
    /// Where the pointer is; where it was last seen when the server does not answer in time.
    std::optional<Point> pointer();

    std::shared_ptr<X11Connection> m_x11;
    std::shared_ptr<RawInput> m_input;
    FrontApplication& m_front;
    MenuPopupsObserver* m_observer; ///< nullptr once stopped
    std::vector<Note> m_notes;
    std::vector<Popup> m_popups;
    std::vector<xcb_window_t> m_others;     ///< came to the screen and are not the front application's so far
    std::vector<xcb_window_t> m_unanswered; ///< came to the screen; the server did not tell more in time
    bool m_hasToLook = false;               ///< nor what was on the screen before
    std::uint64_t m_openings = 0;
    std::optional<Point> m_lastPlace; ///< since menus are open
    bool m_isHeld = false;            ///< a button was down then
    std::uint32_t m_leftButton = 1;   ///< the number that the device gives it
    bool m_wasOpen = false;           ///< what the observer was told last
    /// Who is in front, once it was asked for what has arrived together.
    std::optional<std::optional<RunningApp>> m_frontNow;
    bool m_frontChanged = false;
    QTimer m_attempt;  ///< runs while a press may still open a menu
    QTimer m_interest; ///< runs while somebody may still be choosing
    QTimer m_glances;  ///< runs while the pointer is followed
    Subscription m_presses;
    Subscription m_releases;
    Subscription m_windows;
    Subscription m_activations;
    Subscription m_events;
    Subscription m_drained;
    Subscription m_caughtUp;
    Subscription m_lost;
};

} // namespace quillon
