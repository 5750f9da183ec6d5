#include "tray_item.h"

#include "tray_icon.h"
#include "tray_texts.h"

#include <QCursor>

#include <utility>

namespace quillon {

TrayItem::TrayItem(QMenu& menu, ThemeSource& themes, TrayClicks clicks) : m_clicks(std::move(clicks)) {
    m_icon.setContextMenu(&menu);
    m_icon.setToolTip(TrayTexts::programName());
    connect(&m_icon, &QSystemTrayIcon::activated, this, &TrayItem::clicked);
    const auto themeChanged = [this, &themes] { m_icon.setIcon(trayIcon(themes.theme().palette.scheme)); };
    m_themeChange = themes.changed.subscribe(themeChanged);
    themeChanged();
}

void TrayItem::clicked(QSystemTrayIcon::ActivationReason click) {
    switch (click) {
    case QSystemTrayIcon::Trigger: m_clicks.openMenu(menuPlace()); break;
    case QSystemTrayIcon::MiddleClick: m_clicks.showOverlay(); break;
    case QSystemTrayIcon::Context: // Qt opens the menu itself
    case QSystemTrayIcon::DoubleClick:
    case QSystemTrayIcon::Unknown: break;
    }
}

QPoint TrayItem::menuPlace() const {
    const QRect icon = m_icon.geometry();
    return icon.isEmpty() ? QCursor::pos() : icon.bottomLeft();
}

} // namespace quillon
