#include "keyboard_symbol.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double linePerSize = 0.075;
constexpr double dotPerSize = 0.055;
constexpr int keysInRow = 5;
constexpr int rows = 3;
constexpr int keysUnderSpaceBar = 3;

/// Lines, keys and the gaps between them, in device pixels.
class KeyboardGrid {
  public:
    /// In the middle of a box of this size.
    KeyboardGrid(int boxWidth, int boxHeight)
        : m_line(std::max(1, static_cast<int>(std::lround(boxWidth * linePerSize)))),
          m_gap(std::max(1, (boxWidth - (keysInRow + 2) * m_line) / (keysInRow + 1))),
          m_origin((boxWidth - width()) / 2, (boxHeight - height()) / 2) {}

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

/// Draws the keyboard on a pixmap that is transparent so far.
void drawKeyboard(QPainter& painter, const KeyboardGrid& grid) {
    drawOutline(painter, grid);
    for (int row = 0; row + 1 < rows; ++row) {
        for (int column = 0; column < keysInRow; ++column)
            painter.fillRect(grid.key(column, row), Qt::black);
    }
    painter.fillRect(grid.key((keysInRow - keysUnderSpaceBar) / 2, rows - 1, keysUnderSpaceBar), Qt::black);
}

/// A dot of the ellipsis, and a gap between two, for a symbol of so many device pixels.
int dotFor(int size) {
    return std::max(1, static_cast<int>(std::lround(size * dotPerSize)));
}

/// What is left of the symbol for the keyboard when the badge hangs over its corner.
int roomBesideBadge(int size) {
    return size - 2 * dotFor(size);
}

void fillCircle(QPainter& painter, const QRect& box, QPainter::CompositionMode mode) {
    QPainterPath circle;
    circle.addEllipse(box);
    painter.setCompositionMode(mode);
    painter.fillPath(circle, Qt::black);
}

/// A disc with an ellipsis cut out of it over the lower right corner, and a rim around it where the keyboard
/// is cut away.
void drawBadge(QPainter& painter, const KeyboardGrid& grid, int dot) {
    const int diameter = 7 * dot;
    const QPoint end = grid.outline().bottomRight() + QPoint(1 + 2 * dot, 1 + 2 * dot);
    const QRect disc(end - QPoint(diameter, diameter), QSize(diameter, diameter));
    fillCircle(painter, disc.adjusted(-dot, -dot, dot, dot), QPainter::CompositionMode_DestinationOut);
    fillCircle(painter, disc, QPainter::CompositionMode_SourceOver);
    for (int place = 0; place < 3; ++place) {
        const QRect hole(disc.topLeft() + QPoint((1 + 2 * place) * dot, 3 * dot), QSize(dot, dot));
        fillCircle(painter, hole, QPainter::CompositionMode_DestinationOut);
    }
}

/// A pixmap of this size on which `draw` has drawn, given the painter and the size in device pixels.
template <class Draw>
QPixmap drawn(int size, double ratio, Draw draw) {
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, pixmap.width());
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QPixmap keyboardPicture(int size, double ratio) {
    return drawn(size, ratio, [](QPainter& painter, int room) { drawKeyboard(painter, {room, room}); });
}

QPixmap keyboardWithEllipsis(int size, double ratio) {
    return drawn(size, ratio, [](QPainter& painter, int room) {
        const KeyboardGrid grid(roomBesideBadge(room), room);
        drawKeyboard(painter, grid);
        drawBadge(painter, grid, dotFor(room));
    });
}

} // namespace quillon
