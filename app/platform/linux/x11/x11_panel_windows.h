#pragma once

#include "raw_input.h"
#include "work_areas.h"

#include <quillon/app/platform/qt/panels/panel_windows.h>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>

namespace quillon {

/// Panels on an X server. They are windows that the window manager does not know (override-redirect), so the
/// keyboard is given to them and back directly.
class X11PanelWindows final : public PanelWindows {
  public:
    /// `maker` is the connection that the windows are made by; the toolkit's when none is given.
    X11PanelWindows(
        std::shared_ptr<X11Connection> x11, std::shared_ptr<RawInput> input,
        xcb_connection_t* maker = nullptr);
    ~X11PanelWindows() override;

    void prepare(std::uintptr_t window) override;
    void setShape(std::uintptr_t window, const WindowShape& shape) override;
    void takeAway(std::uintptr_t window) override;
    /// Does not wait: a window that is not on the screen yet gets the keyboard as soon as it is.
    void takeKeyboard(std::uintptr_t window) override;
    /// Does not wait either for a window that has the keyboard: it may have to go at once. One to whose owner
    /// it cannot be given follows the pointer as soon as the window goes.
    void returnKeyboard(std::uintptr_t window) override;
    bool isComposited() const override { return m_composited; }
    Subscription onCompositedChanged(std::function<void()> callback) override;
    /// The wheel is no press. A press whose place the server does not tell in time is not told.
    Subscription onPressElsewhere(std::function<void()> callback) override;
    std::optional<PixelBox> freeOf(const PixelBox& monitor) override { return m_workAreas.freeOf(monitor); }
    Subscription onFreeChanged(std::function<void()> callback) override {
        return m_workAreas.onChanged(std::move(callback));
    }

  private:
    /// What is known of a window that took the keyboard.
    struct Taking {
        bool isWanted = true;                              ///< it has not got it yet
        bool isHere = false;                               ///< it has it
        std::optional<xcb_get_input_focus_cookie_t> asked; ///< who had it, if not looked up yet
        xcb_window_t before = XCB_NONE;                    ///< who had it
        Subscription events;                               ///< of the window
    };

    void handle(const xcb_generic_event_t& event);
    void followCompositor();
    void focusChanged(const xcb_focus_in_event_t& event);
    void setComposited(bool composited);
    void focus(xcb_window_t window);
    void learnWhoHadIt(xcb_window_t window, Taking& taking);
    bool isWithOurs(xcb_window_t window);
    void drained();
    xcb_connection_t* maker() const;
    std::optional<bool> isPointerOverOurs();
    bool isOurs(xcb_window_t window);

    std::shared_ptr<X11Connection> m_x11;
    std::shared_ptr<RawInput> m_input;
    xcb_connection_t* m_maker;
    WorkAreas m_workAreas;
    xcb_atom_t m_compositorSelection = XCB_ATOM_NONE;
    bool m_composited = false;
    std::map<xcb_window_t, Taking> m_takings;
    std::set<std::uint32_t> m_ourClients; ///< client parts of our windows' numbers
    Event<> m_compositedChanged;
    Event<> m_pressElsewhere;
    std::shared_ptr<std::size_t> m_pressListeners = std::make_shared<std::size_t>(0);
    Subscription m_presses;
    bool m_isPressed = false; ///< a button went down; not known yet where
    Subscription m_events;
    Subscription m_drained;
    Subscription m_lost;
};

} // namespace quillon
