#pragma once

#include "x11_connection.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace quillon {

/// A key or button that went down, or a button that was let go, whichever window had the focus or a grab.
/// Says neither where nor with which modifiers: ask for them.
struct RawPress {
    std::uint32_t detail = 0; ///< the X key code or the button's number, as the device counts them
    bool isRepeat = false;    ///< a held key that repeats
    xcb_timestamp_t time = 0; ///< of the server
};

/// Buttons 4 to 7 are the wheel; devices that scroll smoothly send them too.
constexpr bool isWheelButton(std::uint32_t button) {
    return button >= 4 && button <= 7;
}

/// The raw input events of the whole display (XInput 2.2). The server is asked for them only while somebody
/// listens: every one of them wakes this program.
class RawInput {
  public:
    using Callback = std::function<void(const RawPress&)>;

    explicit RawInput(std::shared_ptr<X11Connection> x11);
    RawInput(const RawInput&) = delete;
    RawInput& operator=(const RawInput&) = delete;
    ~RawInput();

    /// An empty handle where the server has no raw events.
    Subscription onKeyPress(Callback callback);
    Subscription onKeyRelease(Callback callback);
    Subscription onButtonPress(Callback callback);
    Subscription onButtonRelease(Callback callback);

  private:
    class Selection;
    Subscription listen(Event<const RawPress&>& event, std::uint32_t mask, Callback callback);
    void handle(const xcb_generic_event_t& event);

    std::shared_ptr<Selection> m_selection;
    Event<const RawPress&> m_keyPress;
    Event<const RawPress&> m_keyRelease;
    Event<const RawPress&> m_buttonPress;
    Event<const RawPress&> m_buttonRelease;
    std::uint8_t m_opcode = 0;
    Subscription m_events;
};

} // namespace quillon
