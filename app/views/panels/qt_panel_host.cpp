#include "qt_panel_host.h"

#include "floating_panel_window.h"

#include <quillon/app/views/overlay/overlay_view.h>

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

QtPanelHost::QtPanelHost(ThemeSource& themes, AppIconCache& icons, PanelWindows& windows, OverlayMode mode)
    : m_themes(themes), m_icons(icons), m_windows(windows), m_mode(mode) {}

QtPanelHost::~QtPanelHost() = default;

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

std::unique_ptr<FloatingPanelWindow> QtPanelHost::makePanel(AppModel& model) const {
    auto* view = new OverlayView(model, m_themes, m_icons, m_mode);
    return std::make_unique<FloatingPanelWindow>(view, OverlayView::cornerRadius, m_themes, m_windows);
}

void QtPanelHost::prepareOverlay(AppModel& model) {
    m_prepared = makePanel(model);
    m_prepared->setFrame(PanelPlacement::overlayFrame(PanelPlacement::visibleFrame(screens(), pointer())));
    m_prepared->prepareWindow();
    m_prepared->findChild<OverlayView*>()->prepare();
    m_prepared->grab();
}

std::unique_ptr<FloatingPanel> QtPanelHost::makeOverlayPanel(AppModel& model) {
    return m_prepared ? std::move(m_prepared) : makePanel(model);
}

} // namespace quillon
