#include "panel_shadow.h"

#include <QImage>
#include <qdrawutil.h>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// The shadow falls downwards by this.
constexpr double drop = 8;
/// Its darkest, beside the edge.
constexpr double strength = 0.30;
/// How far the darker line beside the edge reaches.
constexpr double nearReach = 6;

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
    return t * t;
}

/// The shadow of a rounded `shape` on a picture of this size.
QImage shadowImage(QSize size, double ratio, const QRectF& shape, double radius, const QColor& colour) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double px = (x + 0.5) / ratio;
            const double py = (y + 0.5) / ratio;
            const double wide =
                falloff(distanceFrom(shape.translated(0, drop), radius, px, py), PanelShadow::reach - drop);
            const double near = falloff(distanceFrom(shape, radius, px, py), nearReach);
            const double alpha = strength * (0.82 * wide + 0.18 * near);
            line[x] = qPremultiply(qRgba(
                colour.red(), colour.green(), colour.blue(), static_cast<int>(std::lround(alpha * 255))));
        }
    }
    return image;
}

/// How far the corners reach into the picture, in logical pixels; between them it is straight.
int cornerOf(double radius) {
    return static_cast<int>(std::ceil(PanelShadow::reach + drop + radius));
}

QPixmap shadowPicture(double radius, double ratio, const QColor& colour) {
    constexpr int straight = 4;
    const int side = 2 * cornerOf(radius) + straight;
    const QRectF shape =
        QRectF(0, 0, side, side)
            .adjusted(PanelShadow::reach, PanelShadow::reach, -PanelShadow::reach, -PanelShadow::reach);
    const QSize size = (QSizeF(side, side) * ratio).toSize();
    return QPixmap::fromImage(shadowImage(size, ratio, shape, radius, colour));
}

} // namespace

void PanelShadow::paint(QPainter& painter, const QRect& panel, double radius, const QColor& colour) {
    const double ratio = painter.device()->devicePixelRatioF();
    if (m_picture.isNull() || ratio != m_picture.devicePixelRatio() || radius != m_radius
        || colour != m_colour) {
        m_picture = shadowPicture(radius, ratio, colour);
        m_radius = radius;
        m_colour = colour;
    }
    const int corner = cornerOf(radius);
    const QRect all = panel.adjusted(-reach, -reach, reach, reach);
    const int pictureCorner = static_cast<int>(std::lround(corner * ratio));
    painter.save();
    painter.setClipRegion(QRegion(all) - all.adjusted(corner, corner, -corner, -corner));
    qDrawBorderPixmap(
        &painter, all, QMargins(corner, corner, corner, corner), m_picture, m_picture.rect(),
        QMargins(pictureCorner, pictureCorner, pictureCorner, pictureCorner));
    painter.restore();
}

} // namespace quillon
