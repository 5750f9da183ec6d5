#pragma once

#include "geometry.h"
#include "panel_placement.h"

#include <functional>
#include <memory>
#include <vector>

namespace quillon {

class AppModel;

/// A borderless window above all others that does not make this program active. Reused for the whole run:
/// hiding only takes it off the screen.
class FloatingPanel {
  public:
    virtual ~FloatingPanel() = default;

    /// Places the content, in logical desktop pixels.
    virtual void setFrame(Rect frame) = 0;
    /// Shows the panel above others without taking the keyboard.
    virtual void orderFront() = 0;
    /// Gives the shown panel the keyboard.
    virtual void makeKey() = 0;
    virtual void orderOut() = 0;
    virtual bool isVisible() const = 0;

    std::function<void()> onEscape; ///< the user pressed Escape in the panel
    std::function<void()> onResign; ///< the panel lost the keyboard, or the user pressed a button elsewhere
};

/// What the panels' controllers need of the toolkit.
class PanelHost {
  public:
    virtual ~PanelHost() = default;

    /// The monitors, the main one first; empty when there is none.
    virtual std::vector<Screen> screens() const = 0;
    virtual Point pointer() const = 0;
    /// The panel that shows the overlay's view of `model`. Called once, on first show. Never null.
    virtual std::unique_ptr<FloatingPanel> makeOverlayPanel(AppModel& model) = 0;
};

} // namespace quillon
