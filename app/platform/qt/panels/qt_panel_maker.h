#pragma once

#include "panel_windows.h"

#include <quillon/app/ports/panel_maker.h>

namespace quillon {

/// Panels as the toolkit's windows.
class QtPanelMaker final : public PanelMaker {
  public:
    /// `windows` outlives it and its panels.
    explicit QtPanelMaker(PanelWindows& windows) : m_windows(windows) {}

    std::vector<Screen> screens() const override;
    Subscription onScreensChanged(std::function<void()> callback) override;
    Point pointer() const override;
    std::unique_ptr<FloatingPanel> makePanel(PanelContent content) override;

  private:
    PanelWindows& m_windows;
};

} // namespace quillon
