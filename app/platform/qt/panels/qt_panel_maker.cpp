#include "qt_panel_maker.h"

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

/// Calls `changed` when a monitor comes, goes or changes, as long as `context` lives.
void followScreens(QObject* context, const std::function<void()>& changed) {
    const auto follow = [context, changed](const QScreen* screen) {
        QObject::connect(screen, &QScreen::geometryChanged, context, changed);
        QObject::connect(screen, &QScreen::availableGeometryChanged, context, changed);
    };
    for (const QScreen* screen : QGuiApplication::screens())
        follow(screen);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, context, [follow, changed](QScreen* screen) {
        follow(screen);
        changed();
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, context, changed);
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, context, changed);
}

} // namespace

std::vector<Screen> QtPanelMaker::screens() const {
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

Subscription QtPanelMaker::onScreensChanged(std::function<void()> callback) {
    auto context = std::make_shared<QObject>();
    followScreens(context.get(), callback);
    return Subscription([context = std::move(context)]() mutable { context.reset(); });
}

Point QtPanelMaker::pointer() const {
    const QPoint position = QCursor::pos();
    return {static_cast<double>(position.x()), static_cast<double>(position.y())};
}

std::unique_ptr<FloatingPanel> QtPanelMaker::makePanel(PanelContent content) {
    return std::make_unique<FloatingPanelWindow>(std::move(content), m_windows);
}

} // namespace quillon
