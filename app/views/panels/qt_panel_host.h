#pragma once

#include <quillon/components/app_icon_cache.h>
#include <quillon/components/theme_source.h>
#include <quillon/core/panel_host.h>
#include <quillon/ports/panel_windows.h>

namespace quillon {

/// Panels as the toolkit's windows.
class QtPanelHost final : public PanelHost {
  public:
    /// All of them outlive the host and its panels.
    QtPanelHost(ThemeSource& themes, AppIconCache& icons, PanelWindows& windows);

    std::vector<Screen> screens() const override;
    Point pointer() const override;
    std::unique_ptr<FloatingPanel> makeOverlayPanel(AppModel& model) override;

  private:
    ThemeSource& m_themes;
    AppIconCache& m_icons;
    PanelWindows& m_windows;
};

} // namespace quillon
