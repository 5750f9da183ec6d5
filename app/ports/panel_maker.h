#pragma once

#include "floating_panel.h"
#include "panel_content.h"
#include "screen.h"

#include <quillon/kit/base/subscription.h>

#include <functional>
#include <memory>
#include <vector>

namespace quillon {

/// What a desktop makes floating panels of, and what there is to place them by. The native side of a panel is
/// the platform's: its level, its place, who has the keyboard, and what reaches the windows below.
class PanelMaker {
  public:
    virtual ~PanelMaker() = default;

    /// The monitors, the main one first; empty when there is none.
    virtual std::vector<Screen> screens() const = 0;
    /// Called when a monitor, or what docks leave free of it, became another.
    virtual Subscription onScreensChanged(std::function<void()> callback) = 0;
    /// The origin where the desktop does not tell.
    virtual Point pointer() const = 0;
    /// A panel that shows `content`, hidden. Never null.
    virtual std::unique_ptr<FloatingPanel> makePanel(PanelContent content) = 0;
};

} // namespace quillon
