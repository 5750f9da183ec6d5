#pragma once

#include "keyboard_map.h"
#include "raw_input.h"

#include <quillon/app/platform/linux/keys/keymap.h>
#include <quillon/app/ports/keyboard.h>

#include <memory>

struct xcb_xkb_state_notify_event_t;

namespace quillon {

/// What a pointer button stands for: 1 is the left one, 3 the right one, and some are the wheel.
InputKind inputKindOfButton(std::uint32_t button);

/// The keyboard as the X server's keyboard extension (XKB) tells it. Its events come under other clients'
/// grabs and are not key events: typing does not wake this program, modifiers do.
class X11Keyboard final : public Keyboard {
  public:
    X11Keyboard(std::shared_ptr<X11Connection> x11, std::shared_ptr<RawInput> input);
    ~X11Keyboard() override;

    /// What is down or latched, of the four; a modifier that is locked (sticky keys) is not held. As the
    /// server's events have told it, so nothing is asked; none when the server is gone.
    Modifiers modifiers() const override;
    Subscription onModifiersChanged(std::function<void(Modifiers)> callback) override;
    std::unique_ptr<InputAges> observeInput() override;

    /// What decides, beside the key, what is pressed now. As the server's events have told it.
    KeyState keyState() const;
    /// The same for a key event of the server's, by the state that the event carries.
    KeyState keyState(std::uint32_t stateOfEvent) const;
    /// Called when what the keys give may have changed: another layout, another keyboard.
    Subscription onMapChanged(std::function<void()> callback) {
        return m_mapChanged.subscribe(std::move(callback));
    }
    /// Called when another of the map's layouts is in effect, which changes nothing of the map.
    Subscription onGroupChanged(std::function<void()> callback) {
        return m_groupChanged.subscribe(std::move(callback));
    }

  private:
    class LastInputs;
    class Ages;

    void selectXkbEvents();
    void handle(const xcb_generic_event_t& event);
    void stateChanged(const xcb_xkb_state_notify_event_t& state);
    void drained();
    void askState();
    void askMap();
    void tell();

    std::shared_ptr<X11Connection> m_x11;
    std::shared_ptr<RawInput> m_input;
    Event<Modifiers> m_changed;
    Event<> m_mapChanged;
    Event<> m_groupChanged;
    KeyboardMap m_map;
    bool m_mapIsStale = true;
    bool m_mapChangeIsUntold = false;
    bool m_stateIsStale = true;
    std::uint32_t m_mask = 0;   ///< what is down or latched
    std::uint32_t m_locked = 0; ///< what is locked
    std::uint32_t m_group = 0;  ///< the layout in effect
    Modifiers m_told;
    std::uint32_t m_toldGroup = 0;
    std::weak_ptr<LastInputs> m_lastInputs;
    Subscription m_events;
    Subscription m_drained;
    Subscription m_caughtUp;
    Subscription m_lost;
};

} // namespace quillon
