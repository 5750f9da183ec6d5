#include "key_pictograms.h"

#include "pictogram_paths.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

constexpr double linePerSize = 0.115;

/// In whole pixels; rather thin than with loops that close up.
int lineWidth(double size) {
    return std::max(1, static_cast<int>(std::floor(size * linePerSize + 0.25)));
}

enum class Turn { none, right, around, left };

struct Pictogram {
    char16_t cap;
    double width; ///< of the ink, in font sizes
    double height;
    QPainterPath (*draw)(const PictogramGrid& grid);
    Turn turn = Turn::none;
};

constexpr std::array pictograms{
    Pictogram{u'⌃', 0.92, 0.55, PictogramPaths::chevron},
    Pictogram{u'⌥', 0.95, 0.75, PictogramPaths::option},
    Pictogram{u'⇧', 0.95, 0.95, PictogramPaths::hollowArrow},
    Pictogram{u'⌘', 0.92, 0.92, PictogramPaths::loopedSquare},
    Pictogram{u'↩', 0.95, 0.85, PictogramPaths::hookedArrow},
    Pictogram{u'⌤', 0.92, 0.75, PictogramPaths::chevronBelowBar},
    Pictogram{u'⇥', 0.75, 1.00, PictogramPaths::arrowToBar, Turn::right},
    Pictogram{u'⇤', 0.75, 1.00, PictogramPaths::arrowToBar, Turn::left},
    Pictogram{u'⌫', 1.25, 0.92, PictogramPaths::crossedTag},
    Pictogram{u'⌦', 1.25, 0.92, PictogramPaths::crossedTag, Turn::around},
    Pictogram{u'⎋', 0.95, 0.95, PictogramPaths::arrowOutOfCircle},
    Pictogram{u'⌧', 1.05, 0.92, PictogramPaths::crossedBox},
    Pictogram{u'←', 0.75, 0.92, PictogramPaths::arrow, Turn::left},
    Pictogram{u'→', 0.75, 0.92, PictogramPaths::arrow, Turn::right},
    Pictogram{u'↑', 0.75, 0.92, PictogramPaths::arrow},
    Pictogram{u'↓', 0.75, 0.92, PictogramPaths::arrow, Turn::around},
    Pictogram{u'⇞', 0.75, 1.10, PictogramPaths::barredArrow},
    Pictogram{u'⇟', 0.75, 1.10, PictogramPaths::barredArrow, Turn::around},
    Pictogram{u'↖', 0.75, 0.75, PictogramPaths::cornerArrow},
    Pictogram{u'↘', 0.75, 0.75, PictogramPaths::cornerArrow, Turn::around},
    Pictogram{u'⏏', 0.92, 0.80, PictogramPaths::wedgeOnBar},
};

const Pictogram* pictogramOf(const QString& cap) {
    if (cap.size() != 1)
        return nullptr;
    const auto found = std::ranges::find(pictograms, cap.front().unicode(), &Pictogram::cap);
    return found == pictograms.end() ? nullptr : found;
}

bool isSideways(Turn turn) {
    return turn == Turn::left || turn == Turn::right;
}

/// About the box `width` by `height`, into a box from the origin again.
QTransform turned(Turn turn, double width, double height) {
    switch (turn) {
    case Turn::none: return {};
    case Turn::right: return {0, 1, -1, 0, height, 0};
    case Turn::around: return {-1, 0, 0, -1, width, height};
    case Turn::left: return {0, -1, 1, 0, 0, width};
    }
    Q_UNREACHABLE();
}

PictogramGrid gridOf(const Pictogram& pictogram, double size) {
    return {pictogram.width * size, pictogram.height * size, lineWidth(size)};
}

} // namespace

namespace KeyPictograms {

bool has(const QString& cap) {
    return pictogramOf(cap) != nullptr;
}

double widthPerSize(const QString& cap) {
    const Pictogram& pictogram = *pictogramOf(cap);
    return isSideways(pictogram.turn) ? pictogram.height : pictogram.width;
}

QSize inkSize(const QString& cap, double size) {
    const Pictogram& pictogram = *pictogramOf(cap);
    const PictogramGrid grid = gridOf(pictogram, size);
    const QSize ink(grid.width(), grid.height());
    return isSideways(pictogram.turn) ? ink.transposed() : ink;
}

Drawing drawing(const QString& cap, double size) {
    const Pictogram& pictogram = *pictogramOf(cap);
    const PictogramGrid grid = gridOf(pictogram, size);
    const QTransform turn = turned(pictogram.turn, grid.width(), grid.height());
    return {inkSize(cap, size), turn.map(pictogram.draw(grid))};
}

} // namespace KeyPictograms

} // namespace quillon
