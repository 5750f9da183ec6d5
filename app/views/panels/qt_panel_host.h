#pragma once

#include "panel_content.h"

#include <quillon/app/ports/panel_host.h>
#include <quillon/app/ports/panel_windows.h>
#include <quillon/app/views/components/theme_source.h>

namespace quillon {

/// Panels as the toolkit's windows.
class QtPanelHost final : public PanelHost {
  public:
    /// All of them outlive the host and its panels. `overlay` makes what the overlay's panel shows.
    QtPanelHost(ThemeSource& themes, PanelWindows& windows, MakePanelContent overlay);

    std::vector<Screen> screens() const override;
    Point pointer() const override;
    std::unique_ptr<FloatingPanel> makeOverlayPanel() override;

  private:
    ThemeSource& m_themes;
    PanelWindows& m_windows;
    MakePanelContent m_overlay;
};

} // namespace quillon
