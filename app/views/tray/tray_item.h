#pragma once

#include <quillon/app/views/components/theme_source.h>

#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QSystemTrayIcon>

#include <functional>

namespace quillon {

/// What clicks on the item do.
struct TrayClicks {
    std::function<void(QPoint place)> openMenu; ///< at a point of the screen
    std::function<void()> showOverlay;
};

/// The program's place in the tray: its icon, its name, and what clicks there do. The item is a menu. Where
/// the tray does not open it by itself, a click with the left button does; one with the middle button shows
/// the overlay. Where there is no tray nothing is shown; should one appear later, the icon appears in it.
class TrayItem final : public QObject {
  public:
    /// All of them outlive the item.
    TrayItem(QMenu& menu, ThemeSource& themes, TrayClicks clicks);

    void show() { m_icon.show(); }
    /// Does what a click does.
    void clicked(QSystemTrayIcon::ActivationReason click);

  private:
    /// Where the menu belongs: at the icon where the tray tells its place, else at the pointer, which has
    /// just clicked it.
    QPoint menuPlace() const;

    TrayClicks m_clicks;
    QSystemTrayIcon m_icon;
    Subscription m_themeChange;
};

} // namespace quillon
