#include "nine_patch.h"

#include "device_pixels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

/// What is stretched, in device pixels; wide enough that no corner's pixels are mixed into it.
constexpr int middle = 4;

} // namespace

NinePatch::NinePatch(double corner, double ratio, const Draw& draw)
    : m_corner(static_cast<int>(std::ceil(corner * ratio))), m_ratio(ratio) {
    const int side = 2 * m_corner + middle;
    m_tile = QPixmap(side, side);
    m_tile.setDevicePixelRatio(ratio);
    m_tile.fill(Qt::transparent);
    QPainter painter(&m_tile);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, QRectF(0, 0, side / ratio, side / ratio));
}

QRectF NinePatch::inside(const QPainter& painter, const QRectF& box) const {
    return onDevicePixels(painter, box).adjusted(corner(), corner(), -corner(), -corner());
}

void NinePatch::paintFrame(QPainter& painter, const QRectF& box) const {
    const QRectF outer = onDevicePixels(painter, box);
    const QRectF inner = inside(painter, box);
    const std::array boxX{outer.left(), inner.left(), inner.right(), outer.right()};
    const std::array boxY{outer.top(), inner.top(), inner.bottom(), outer.bottom()};
    const std::array<double, 4> tile{
        0, double(m_corner), double(m_corner + middle), double(2 * m_corner + middle)};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            if (row == 1 && column == 1)
                continue;
            const QRectF to(QPointF(boxX[column], boxY[row]), QPointF(boxX[column + 1], boxY[row + 1]));
            const QRectF from(QPointF(tile[column], tile[row]), QPointF(tile[column + 1], tile[row + 1]));
            painter.drawPixmap(to, m_tile, from);
        }
    }
}

NinePatch roundedBox(double radius, double ratio, const QColor& fill, const QColor& border) {
    return NinePatch(radius + 1, ratio, [&](QPainter& painter, const QRectF& box) {
        const double line = std::max(1.0, std::floor(ratio + 0.25)) / ratio;
        painter.setBrush(fill);
        painter.setPen(QPen(border, line));
        painter.drawRoundedRect(box.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
    });
}

} // namespace quillon
