#pragma once

#include "tray_lines.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/tray.h>

#include <functional>

namespace quillon {

/// What the menu's commands do.
struct TrayActions {
    std::function<void()> showOverlay; ///< to stay open
    std::function<void(WindowName)> openWindow;
    std::function<void()> checkForUpdates;
    std::function<void()> quit;
};

/// The program's icon in the tray, and its menu, which follows the model.
class TrayMenu {
  public:
    /// `model` and `tray` outlive it.
    TrayMenu(AppModel& model, Tray& tray, TrayActions actions);

    /// Puts the icon into the tray.
    void show();

  private:
    void update();
    void choose(TrayLine line) const;

    AppModel& m_model;
    Tray& m_tray;
    TrayActions m_actions;
    std::vector<TrayMenuItem> m_lines; ///< as the tray has them
    Subscription m_modelChange;
};

} // namespace quillon
