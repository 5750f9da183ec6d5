#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Another client of the X server: it has windows, moves the keyboard and the pointer, and can play the
/// window manager. Every operation is done by the server when it returns.
class TestClient {
  public:
    explicit TestClient(const std::string& display);

    struct WindowOptions {
        std::string_view instance = {};
        std::string_view className = {};
        std::string_view title = {};
        bool overrideRedirect = false;
        bool mapped = true;
        std::int16_t x = 0;
        std::int16_t y = 0;
        std::uint16_t size = 50;
    };
    xcb_window_t makeWindow(const WindowOptions& options);
    void destroy(xcb_window_t window);
    void map(xcb_window_t window);
    void unmap(xcb_window_t window);
    void moveWindow(xcb_window_t window, std::uint32_t x, std::uint32_t y);

    xcb_atom_t atom(std::string_view name);
    void
    setText(xcb_window_t window, std::string_view property, std::string_view type, std::string_view text);
    void setNumbers(
        xcb_window_t window, std::string_view property, std::string_view type,
        const std::vector<std::uint32_t>& values);
    void remove(xcb_window_t window, std::string_view property);
    std::vector<std::uint32_t> numbers(xcb_window_t window, std::string_view property);
    xcb_window_t root() const { return m_screen->root; }

    /// Announces a window manager that tells the active window; gives the window that stands for it.
    xcb_window_t becomeWindowManager();
    void setActiveWindow(xcb_window_t window);
    /// Makes these windows active in turn, so many times altogether, as fast as requests go.
    void floodActiveWindow(const std::vector<xcb_window_t>& windows, int times);
    bool isMapped(xcb_window_t window);
    /// The child of the root window that the pointer is in; XCB_NONE over the root window itself.
    xcb_window_t windowUnderPointer();
    void setFocus(xcb_window_t window);
    xcb_window_t focus();

    void keyDown(std::uint8_t keyCode);
    void keyUp(std::uint8_t keyCode);
    void buttonDown(std::uint8_t button);
    void buttonUp(std::uint8_t button);
    void click(std::uint8_t button);
    /// What the device's buttons count as, its first button's number first. False while a button is down.
    bool setPointerMapping(const std::vector<std::uint8_t>& buttons);
    /// Has the server tell this client when the pointer comes to or leaves a window.
    void watchPointer(xcb_window_t window);
    /// How the pointer came to watched windows since the last time: XCB_NOTIFY_MODE_… of each coming.
    std::vector<std::uint8_t> pointerComings();
    void movePointer(std::int16_t x, std::int16_t y);
    bool grabKeyboard();
    bool grabPointer();
    void ungrab();
    void grabServer();
    void ungrabServer();
    /// Sticky keys: a modifier that is tapped holds for the next key; tapped twice it is locked.
    void setStickyKeys(bool on);
    void tap(std::uint8_t keyCode);
    void changeSymbol(std::uint8_t keyCode, std::uint32_t symbol);
    /// Two symbols, without and with Shift, for each layout.
    void changeSymbols(std::uint8_t keyCode, const std::vector<std::uint32_t>& symbols);
    /// Puts a layout in effect, counted from 0.
    void lockGroup(std::uint8_t group);
    /// Has held keys repeat: the first time after `delay` milliseconds, then every `interval`.
    void setRepeat(std::uint16_t delay, std::uint16_t interval);
    /// Has the server tell this client of the keys that are pressed in a window that has the focus.
    void watchKeys(xcb_window_t window);
    /// How many presses, repeated ones too, watched windows have got.
    int keysSeen();
    void ownSelection(std::string_view name, xcb_window_t owner);

    /// Waits until the server has done everything so far.
    void sync();

  private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    void fake(std::uint8_t type, std::uint8_t detail, std::int16_t x = 0, std::int16_t y = 0);

    std::unique_ptr<xcb_connection_t, Disconnect> m_xcb;
    const xcb_screen_t* m_screen = nullptr;
    int m_keysSeen = 0;
};

} // namespace quillon
