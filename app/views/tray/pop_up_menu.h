#pragma once

#include <quillon/app/ports/tray.h>
#include <quillon/app/views/components/theme_source.h>

#include <QMenu>
#include <QPoint>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace quillon {

/// The tray's menu as a window of our own, for where no tray shows it.
class PopUpMenu {
  public:
    /// `chosen` is called with the id of a command, after the menu has closed. `themes` outlives the menu.
    PopUpMenu(ThemeSource& themes, std::function<void(int id)> chosen);

    /// Lines that stay keep the highlight, should the menu be open.
    void setItems(const std::vector<TrayMenuItem>& items);
    /// Opens it at a point of the screen; one that is open moves there.
    void popUp(QPoint place);

    QMenu& menu() { return *m_menu; }

  private:
    QAction& actionOf(const TrayMenuItem& item);
    void arrange(const std::vector<TrayMenuItem>& items);

    std::function<void(int)> m_chosen;
    std::map<int, QAction*> m_actions; ///< by their items' ids; of `m_menu`
    std::vector<int> m_order;
    std::unique_ptr<QMenu> m_menu;
    Subscription m_themeChange;
};

} // namespace quillon
