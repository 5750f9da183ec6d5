#include "keyboard_symbol.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double linePerSize = 0.075;
constexpr int keysInRow = 5;
constexpr int rows = 3;
constexpr int keysUnderSpaceBar = 3;

/// Lines, keys and the gaps between them, in device pixels.
class KeyboardGrid {
  public:
    explicit KeyboardGrid(int room)
        : m_line(std::max(1, static_cast<int>(std::lround(room * linePerSize)))),
          m_gap(std::max(1, (room - (keysInRow + 2) * m_line) / (keysInRow + 1))),
          m_origin((room - width()) / 2, (room - height()) / 2) {}

    int line() const { return m_line; }
    QRect outline() const { return {m_origin, QSize(width(), height())}; }
    /// A key that is as wide as `keys` with the gaps between them.
    QRect key(int column, int row, int keys = 1) const {
        const int step = m_line + m_gap;
        return {
            m_origin + QPoint((column + 1) * step, (row + 1) * step),
            QSize(m_line + (keys - 1) * step, m_line)};
    }

  private:
    int width() const { return (keysInRow + 2) * m_line + (keysInRow + 1) * m_gap; }
    int height() const { return (rows + 2) * m_line + (rows + 1) * m_gap; }

    int m_line;
    int m_gap;
    QPoint m_origin;
};

void drawOutline(QPainter& painter, const KeyboardGrid& grid) {
    const QRectF outer = grid.outline();
    const double line = grid.line();
    QPainterPath frame;
    frame.addRoundedRect(outer, 2 * line, 2 * line);
    frame.addRoundedRect(outer.adjusted(line, line, -line, -line), line, line);
    painter.fillPath(frame, Qt::black);
}

} // namespace

QPixmap keyboardPicture(int size, double ratio) {
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    const KeyboardGrid grid(pixmap.width());
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    drawOutline(painter, grid);
    for (int row = 0; row + 1 < rows; ++row) {
        for (int column = 0; column < keysInRow; ++column)
            painter.fillRect(grid.key(column, row), Qt::black);
    }
    painter.fillRect(grid.key((keysInRow - keysUnderSpaceBar) / 2, rows - 1, keysUnderSpaceBar), Qt::black);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace quillon
