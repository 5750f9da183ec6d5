#pragma once

#include "tray_lines.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/tray.h>
#include <quillon/app/views/components/theme_source.h>

#include <functional>
#include <memory>

namespace quillon {

class PopUpMenu;

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
    /// `model`, `tray` and `themes` outlive it.
    TrayMenu(AppModel& model, Tray& tray, ThemeSource& themes, TrayActions actions);
    ~TrayMenu();

    /// Puts the icon into the tray.
    void show();
    /// Opens the menu where the pointer is, tray or no tray.
    void popUp();

  private:
    void update();
    void choose(TrayLine line) const;

    AppModel& m_model;
    Tray& m_tray;
    ThemeSource& m_themes;
    TrayActions m_actions;
    std::vector<TrayMenuItem> m_lines; ///< as the tray has them
    std::unique_ptr<PopUpMenu> m_menu; ///< made when it opens first
    Subscription m_modelChange;
};

} // namespace quillon
