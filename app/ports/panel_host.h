#pragma once

#include "floating_panel.h"
#include "screen.h"

#include <quillon/kit/base/subscription.h>

#include <functional>
#include <memory>
#include <vector>

namespace quillon {

/// Where floating panels come from and what there is to place them by. What a panel shows is known to its
/// maker only.
class PanelHost {
  public:
    virtual ~PanelHost() = default;

    /// The monitors, the main one first; empty when there is none.
    virtual std::vector<Screen> screens() const = 0;
    /// Called when one of them became another.
    virtual Subscription onScreensChanged(std::function<void()> callback) = 0;
    virtual Point pointer() const = 0;
    /// A panel that shows the overlay, hidden. Never null.
    virtual std::unique_ptr<FloatingPanel> makeOverlayPanel() = 0;
    /// A panel that shows the nudge, hidden. Never null.
    virtual std::unique_ptr<FloatingPanel> makeToastPanel() = 0;
};

} // namespace quillon
