#include "panel_shadow.h"

#include <qdrawutil.h>

#include <QImage>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// The shadow falls downwards by this.
constexpr double drop = 8;
/// Its darkest, beside the edge.
constexpr double strength = 0.34;
/// Straight edge between two corners of the tile; what is stretched.
constexpr double middle = 8;

/// The distance of a point from a rounded rectangle: 0 on its edge, negative inside.
double distanceFrom(const QRectF& rect, double radius, double x, double y) {
    const double dx = std::abs(x - rect.center().x()) - rect.width() / 2 + radius;
    const double dy = std::abs(y - rect.center().y()) - rect.height() / 2 + radius;
    const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
    return outside + std::min(std::max(dx, dy), 0.0) - radius;
}

/// From 1 on the edge to 0 at `reach`, like blurred light.
double falloff(double distance, double reach) {
    const double t = std::clamp(1 - distance / reach, 0.0, 1.0);
    return t * t * t;
}

QPixmap tile(double radius, const QColor& colour, double ratio) {
    const double edge = PanelShadow::reach + radius;
    const double size = 2 * edge + middle;
    QImage image(
        QSize(1, 1) * static_cast<int>(std::ceil(size * ratio)), QImage::Format_ARGB32_Premultiplied);
    const QRectF shape(PanelShadow::reach, PanelShadow::reach, 2 * radius + middle, 2 * radius + middle);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double px = (x + 0.5) / ratio;
            const double py = (y + 0.5) / ratio;
            const double wide =
                falloff(distanceFrom(shape.translated(0, drop), radius, px, py), PanelShadow::reach - drop);
            const double near = falloff(distanceFrom(shape, radius, px, py), 10);
            const double alpha = std::min(1.0, strength * (0.8 * wide + 0.2 * near));
            line[x] = qPremultiply(qRgba(
                colour.red(), colour.green(), colour.blue(), static_cast<int>(std::lround(alpha * 255))));
        }
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

void PanelShadow::paint(QPainter& painter, const QRectF& panel, double radius, const QColor& colour) {
    const double ratio = painter.device()->devicePixelRatioF();
    if (m_tile.isNull() || ratio != m_ratio || radius != m_radius || colour != m_colour) {
        m_tile = tile(radius, colour, ratio);
        m_ratio = ratio;
        m_radius = radius;
        m_colour = colour;
    }
    const int edge = static_cast<int>(reach + radius);
    const QMargins margins(edge, edge, edge, edge);
    const QRect target = panel.toRect().adjusted(-reach, -reach, reach, reach);
    qDrawBorderPixmap(
        &painter, target, margins, m_tile, QRect(QPoint(0, 0), m_tile.deviceIndependentSize().toSize()),
        margins, QTileRules(Qt::StretchTile));
}

} // namespace quillon
