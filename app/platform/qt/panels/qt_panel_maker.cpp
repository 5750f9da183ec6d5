#include "qt_panel_maker.h"

#include "floating_panel_window.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <cmath>
#include <memory>
#include <utility>

namespace quillon {

namespace {

Rect rectOf(const QRect& rect) {
    return {
        static_cast<double>(rect.x()), static_cast<double>(rect.y()), static_cast<double>(rect.width()),
        static_cast<double>(rect.height())};
}

/// A monitor in the desktop's own pixels. The toolkit scales its size and leaves its place.
PixelBox pixelsOf(const QScreen& screen) {
    const QRect logical = screen.geometry();
    const double scale = screen.devicePixelRatio();
    return {logical.x(), logical.y(), qRound(logical.width() * scale), qRound(logical.height() * scale)};
}

/// The whole logical pixels of a box on a monitor.
QRect logicalOf(const PixelBox& box, const QScreen& screen) {
    const QPoint origin = screen.geometry().topLeft();
    const double scale = screen.devicePixelRatio();
    const auto inner = [scale](int from, int to) {
        return std::pair(static_cast<int>(std::ceil(from / scale)), static_cast<int>(std::floor(to / scale)));
    };
    const auto [left, right] = inner(box.x - origin.x(), box.x - origin.x() + box.width);
    const auto [top, bottom] = inner(box.y - origin.y(), box.y - origin.y() + box.height);
    return {origin + QPoint(left, top), QSize(right - left, bottom - top)};
}

/// The toolkit knows the work area of the whole desktop only, which is no single monitor's when there are
/// several.
QRect visibleFrame(const QScreen& screen, PanelWindows& windows) {
    const QRect toolkits = screen.availableGeometry();
    const auto free = windows.freeOf(pixelsOf(screen));
    if (!free)
        return toolkits;
    const QRect own = logicalOf(*free, screen) & screen.geometry();
    const bool isOnlyOne = QGuiApplication::screens().size() == 1;
    const QRect both = isOnlyOne ? own & toolkits : own;
    return both.isEmpty() ? toolkits : both;
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
        const Screen one{rectOf(screen->geometry()), rectOf(visibleFrame(*screen, m_windows))};
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
    auto docks = std::make_shared<Subscription>(m_windows.onFreeChanged(std::move(callback)));
    return Subscription([context = std::move(context), docks = std::move(docks)]() mutable {
        docks->reset();
        context.reset();
    });
}

Point QtPanelMaker::pointer() const {
    const QPoint position = QCursor::pos();
    return {static_cast<double>(position.x()), static_cast<double>(position.y())};
}

std::unique_ptr<FloatingPanel> QtPanelMaker::makePanel(PanelContent content) {
    return std::make_unique<FloatingPanelWindow>(std::move(content), m_windows);
}

} // namespace quillon
