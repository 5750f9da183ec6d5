#pragma once

#include "x11_keyboard.h"

#include <quillon/app/ports/background.h>

#include <QTimer>

#include <memory>
#include <string>

namespace quillon {

/// What the keys give now: asked for at the start and whenever the server tells of a change, off the main
/// thread, since it takes the server a few milliseconds. The first change of many is followed at once, the
/// others together a moment later.
class FollowedKeymap {
  public:
    /// Both outlive it. `display` is that of `keyboard`; $DISPLAY when it is empty.
    FollowedKeymap(X11Keyboard& keyboard, Background& background, std::string display);

    /// The newest that is known; nullptr before the first. It may be a moment behind the keyboard.
    const Keymap* keymap() const { return m_keymap.get(); }
    /// Emitted when it is another.
    Event<> changed;

  private:
    void follow();
    void ask();
    void arrived(std::shared_ptr<const Keymap> keymap);

    Background& m_background;
    std::string m_display;
    std::shared_ptr<const Keymap> m_keymap;
    bool m_isStale = false;
    QTimer m_pause;
    Subscription m_request;
    Subscription m_changes;
};

} // namespace quillon
