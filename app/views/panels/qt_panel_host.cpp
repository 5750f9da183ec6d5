#include "qt_panel_host.h"

#include "floating_panel_window.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace quillon {

namespace {

Rect rectOf(const QRect& rect) {
    return {
        static_cast<double>(rect.x()), static_cast<double>(rect.y()), static_cast<double>(rect.width()),
        static_cast<double>(rect.height())};
}

} // namespace

QtPanelHost::QtPanelHost(ThemeSource& themes, PanelWindows& windows, MakePanelContent overlay)
    : m_themes(themes), m_windows(windows), m_overlay(std::move(overlay)) {}

std::vector<Screen> QtPanelHost::screens() const {
    std::vector<Screen> screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const Screen one{rectOf(screen->geometry()), rectOf(screen->availableGeometry())};
        if (screen == QGuiApplication::primaryScreen())
            screens.insert(screens.begin(), one);
        else
            screens.push_back(one);
    }
    return screens;
}

Point QtPanelHost::pointer() const {
    const QPoint position = QCursor::pos();
    return {static_cast<double>(position.x()), static_cast<double>(position.y())};
}

std::unique_ptr<FloatingPanel> QtPanelHost::makeOverlayPanel() {
    return std::make_unique<FloatingPanelWindow>(m_overlay(), m_themes, m_windows);
}

} // namespace quillon
