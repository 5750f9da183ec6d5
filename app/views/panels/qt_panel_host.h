#pragma once

#include <quillon/app/core/panel_host.h>
#include <quillon/app/ports/panel_windows.h>
#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/overlay/overlay_state.h>

namespace quillon {

class FloatingPanelWindow;

/// Panels as the toolkit's windows.
class QtPanelHost final : public PanelHost {
  public:
    /// All of them outlive the host and its panels. The overlay is made in `mode`.
    QtPanelHost(ThemeSource& themes, AppIconCache& icons, PanelWindows& windows, OverlayMode mode);

    ~QtPanelHost() override;

    /// Makes the overlay's panel ahead of its first use and draws it once where nobody sees it, so that it
    /// shows as fast the first time as later. For a moment in which nothing else is to be done.
    void prepareOverlay(AppModel& model);

    std::vector<Screen> screens() const override;
    Point pointer() const override;
    std::unique_ptr<FloatingPanel> makeOverlayPanel(AppModel& model) override;

  private:
    std::unique_ptr<FloatingPanelWindow> makePanel(AppModel& model) const;

    ThemeSource& m_themes;
    AppIconCache& m_icons;
    PanelWindows& m_windows;
    OverlayMode m_mode;
    std::unique_ptr<FloatingPanelWindow> m_prepared; ///< until it is asked for
};

} // namespace quillon
