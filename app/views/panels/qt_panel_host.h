#pragma once

#include <quillon/components/app_icon_cache.h>
#include <quillon/components/theme_source.h>
#include <quillon/core/panel_host.h>
#include <quillon/overlay/overlay_state.h>
#include <quillon/ports/panel_windows.h>

namespace quillon {

/// Panels as the toolkit's windows.
class QtPanelHost final : public PanelHost {
  public:
    /// All of them outlive the host and its panels. The overlay is made in `mode`.
    QtPanelHost(ThemeSource& themes, AppIconCache& icons, PanelWindows& windows, OverlayMode mode);

    std::vector<Screen> screens() const override;
    Point pointer() const override;
    std::unique_ptr<FloatingPanel> makeOverlayPanel(AppModel& model) override;

  private:
    ThemeSource& m_themes;
    AppIconCache& m_icons;
    PanelWindows& m_windows;
    OverlayMode m_mode;
};

} // namespace quillon
