#include "nine_patch.h"

#include <array>
#include <cmath>

namespace quillon {

namespace {

/// What is stretched; wide enough that no corner's pixels are mixed into it.
constexpr double middle = 4;

} // namespace

NinePatch::NinePatch(double corner, double ratio, const Draw& draw)
    : m_corner(std::ceil(corner)), m_ratio(ratio) {
    const double side = 2 * m_corner + middle;
    m_tile = QPixmap(QSize(1, 1) * static_cast<int>(std::ceil(side * ratio)));
    m_tile.setDevicePixelRatio(ratio);
    m_tile.fill(Qt::transparent);
    QPainter painter(&m_tile);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, QRectF(0, 0, side, side));
}

void NinePatch::paintFrame(QPainter& painter, const QRectF& box) const {
    const double side = 2 * m_corner + middle;
    const QRectF inner = inside(box);
    const std::array boxX{box.left(), inner.left(), inner.right(), box.right()};
    const std::array boxY{box.top(), inner.top(), inner.bottom(), box.bottom()};
    const std::array tile{0.0, m_corner, side - m_corner, side};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            if (row == 1 && column == 1)
                continue;
            const QRectF to(QPointF(boxX[column], boxY[row]), QPointF(boxX[column + 1], boxY[row + 1]));
            const QRectF from(
                QPointF(tile[column], tile[row]) * m_ratio,
                QPointF(tile[column + 1], tile[row + 1]) * m_ratio);
            painter.drawPixmap(to, m_tile, from);
        }
    }
}

NinePatch roundedBox(double radius, double ratio, const QColor& fill, const QColor& border) {
    return NinePatch(radius + 1, ratio, [&](QPainter& painter, const QRectF& box) {
        painter.setBrush(fill);
        painter.setPen(QPen(border, 1));
        painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    });
}

} // namespace quillon
