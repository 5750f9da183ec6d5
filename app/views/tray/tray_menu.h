#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/theme_source.h>

#include <QAction>
#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

#include <functional>

namespace quillon {

/// The program's icon in the tray and its menu. Where there is no tray it does nothing; should one appear
/// later, the icon appears in it.
class TrayMenu : public QObject {
    Q_OBJECT

  public:
    /// `quit` ends the program. Both outlive the menu.
    TrayMenu(AppModel& model, ThemeSource& themes, std::function<void()> quit);
    ~TrayMenu() override;

    /// Puts the icon into the tray.
    void show();

    /// For places that show the same menu elsewhere.
    QMenu& menu() { return m_menu; }

  private:
    void build();
    void modelChanged();
    void themeChanged();
    QAction* addWindowItem(const QString& label, WindowName window);

    AppModel& m_model;
    ThemeSource& m_themes;
    std::function<void()> m_quit;
    QMenu m_menu;
    QSystemTrayIcon m_icon;
    QAction* m_allow = nullptr;
    QAction* m_allowSeparator = nullptr;
    QAction* m_show = nullptr;
    QAction* m_hint = nullptr;
    Subscription m_modelChange;
    Subscription m_themeChange;
};

} // namespace quillon
