#include "panel_shadow.h"

#include <QImage>

#include <algorithm>
#include <array>
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

/// Draws the corners of `picture` as they are and its edges stretched along `frame`, nothing in the middle.
void paintFrame(QPainter& painter, const QPixmap& picture, const QRect& frame, int corner) {
    const double side = picture.width();
    const double cornerPixels = corner * picture.devicePixelRatio();
    const std::array<double, 4> from{0, cornerPixels, side - cornerPixels, side};
    const QRectF outer = frame;
    const QRectF inner = outer.adjusted(corner, corner, -corner, -corner);
    const std::array x{outer.left(), inner.left(), inner.right(), outer.right()};
    const std::array y{outer.top(), inner.top(), inner.bottom(), outer.bottom()};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            if (row == 1 && column == 1)
                continue;
            painter.drawPixmap(
                QRectF(QPointF(x[column], y[row]), QPointF(x[column + 1], y[row + 1])), picture,
                QRectF(QPointF(from[column], from[row]), QPointF(from[column + 1], from[row + 1])));
        }
    }
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
    paintFrame(painter, m_picture, panel.adjusted(-reach, -reach, reach, reach), cornerOf(radius));
}

} // namespace quillon
