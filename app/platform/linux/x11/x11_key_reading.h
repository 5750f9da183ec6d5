#pragma once

#include "x11_keyboard.h"

#include <quillon/app/ports/background.h>
#include <quillon/app/ports/key_reading.h>

#include <memory>
#include <string>

namespace quillon {

class FollowedKeymap;

/// The key events of the toolkit's windows, whose numbers are the X server's: a key code and a state. A press
/// is read by its own state, not by what is held when its turn comes.
class X11KeyReading final : public KeyReading {
  public:
    /// Both outlive it. `display` is that of `keyboard`; $DISPLAY when it is empty.
    X11KeyReading(X11Keyboard& keyboard, Background& background, std::string display = {});
    ~X11KeyReading() override;

    /// What the keys stand for becomes known some milliseconds after the first follower came.
    Subscription follow(std::function<void()> changed) override;
    std::optional<KeyStroke> stroke(const HardwarePress& press) const override;
    std::optional<PrintedKeys> printed() const override;

  private:
    std::shared_ptr<FollowedKeymap> followed();
    const Keymap* keymap() const;

    X11Keyboard& m_keyboard;
    Background& m_background;
    std::string m_display;
    std::weak_ptr<FollowedKeymap> m_followed; ///< as long as anybody follows
};

} // namespace quillon
