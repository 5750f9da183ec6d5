#pragma once

#include "tray_item.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/theme_source.h>

#include <QAction>
#include <QMenu>
#include <QObject>

#include <functional>

namespace quillon {

/// The program's menu, and the item in the tray that it belongs to.
class TrayMenu : public QObject {
    Q_OBJECT

  public:
    /// `quit` ends the program. Both outlive the menu.
    TrayMenu(AppModel& model, ThemeSource& themes, std::function<void()> quit);
    ~TrayMenu() override;

    /// Puts the item into the tray.
    void show() { m_item.show(); }
    /// Opens the menu at a point of the screen.
    void popUp(QPoint place) { m_menu.popup(place); }

    QMenu& menu() { return m_menu; }
    TrayItem& item() { return m_item; }

  private:
    void build();
    void modelChanged();
    QAction* addWindowItem(const QString& label, WindowName window);

    AppModel& m_model;
    std::function<void()> m_quit;
    QMenu m_menu;
    TrayItem m_item;
    QAction* m_allow = nullptr;
    QAction* m_allowSeparator = nullptr;
    QAction* m_show = nullptr;
    QAction* m_hint = nullptr;
    Subscription m_modelChange;
};

} // namespace quillon
