#pragma once

#include "geometry.h"

#include <quillon/kit/base/instant.h>

#include <functional>

namespace quillon {

/// A borderless window above all others that does not make this program active. Reused for the whole run:
/// hiding only takes it off the screen.
class FloatingPanel {
  public:
    virtual ~FloatingPanel() = default;

    /// Does ahead what the first showing would have to do otherwise, where nobody sees it. After `setFrame`.
    virtual void prepare() = 0;
    /// Places the content, in logical desktop pixels.
    virtual void setFrame(Rect frame) = 0;
    /// Shows the panel above others without taking the keyboard.
    virtual void orderFront() = 0;
    /// Gives the shown panel the keyboard.
    virtual void makeKey() = 0;
    virtual void orderOut() = 0;
    /// Shows the panel as `orderFront` does, wholly transparent at first and opaque after `time`. Opaque at
    /// once where the desktop does not blend windows.
    virtual void fadeIn(Seconds time) = 0;
    /// Makes the panel transparent for `time` and then orders it out. Showing it again meanwhile ends that.
    virtual void fadeOut(Seconds time) = 0;
    virtual bool isVisible() const = 0;

    std::function<void()> onEscape; ///< the user pressed Escape in the panel
    std::function<void()> onResign; ///< the panel lost the keyboard, or the user pressed a button elsewhere
};

} // namespace quillon
