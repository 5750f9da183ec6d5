#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/platform/none/no_desktop.h>
#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/panels/view_panel_host.h>

namespace quillon {

/// The overlay with a made-up application, of a model that reads nothing and keeps nothing.
class Showcase {
  public:
    /// All of them outlive the showcase.
    Showcase(
        const Clock& clock, Timers& timers, Background& background, ThemeSource& themes, AppIconCache& icons,
        PanelMaker& panels, Settings& settings);

    /// Opens the overlay and keeps it open.
    void show();

  private:
    NoDesktop m_none;
    ViewPanelHost m_panels;
    AppModel m_model;
};

} // namespace quillon
