#include "pictogram_paths.h"

#include <QPainterPathStroker>
#include <QPolygonF>
#include <QRectF>
#include <QTransform>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quillon {

namespace {

/// Slanting lines look thinner than upright ones of the same width.
constexpr double slantWeight = 1.15;

/// The length nearest to `wanted` that is even when `line` is, and odd when it is odd.
int alike(double wanted, int line) {
    const int least = line;
    const int steps = static_cast<int>(std::lround((wanted - line) / 2));
    return least + 2 * std::max(0, steps);
}

QPainterPath filled() {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    return path;
}

void addPolygon(QPainterPath& path, const QPolygonF& polygon) {
    path.addPolygon(polygon);
    path.closeSubpath();
}

/// A roof over the box, cut off level with the box's foot.
void addChevron(QPainterPath& path, const QRectF& box, double line) {
    const double rise = 2 * box.height() / box.width();
    const double down = line * slantWeight * std::sqrt(1 + rise * rise);
    const double along = down / rise;
    const double middle = box.center().x();
    addPolygon(
        path, {{middle, box.top()},
               {box.right(), box.bottom()},
               {box.right() - along, box.bottom()},
               {middle, box.top() + down},
               {box.left() + along, box.bottom()},
               {box.left(), box.bottom()}});
}

/// Leaves the polygon out of what has been added so far; its corners in the same turn as those around it.
void cutOut(QPainterPath& path, const QPolygonF& polygon) {
    QPainterPath hole;
    addPolygon(hole, polygon);
    path.addPath(hole.toReversed());
}

void addStem(QPainterPath& path, const PictogramGrid& grid, double top) {
    path.addRect(grid.middle() - grid.line() / 2.0, top, grid.line(), grid.height() - top);
}

/// The head of an arrow that points up, over the whole width; its point at `top`.
void addHead(QPainterPath& path, const PictogramGrid& grid, double top) {
    const double height = std::round(grid.width() * 0.52 + grid.line() * 0.5);
    addChevron(path, QRectF(0, top, grid.width(), height), grid.line() * 1.1);
    addStem(path, grid, top + grid.line());
}

QPainterPath stroked(const QPainterPath& path, double line) {
    QPainterPathStroker stroker;
    stroker.setWidth(line);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    return stroker.createStroke(path);
}

QPointF onCircle(QPointF centre, double radius, double angle) {
    return centre + radius * QPointF(std::cos(angle), -std::sin(angle));
}

/// Along the circle, from where the path is. In curves of at most 135 degrees, which are less than a
/// hundredth of the radius off.
void arcOn(QPainterPath& path, QPointF centre, double radius, double from, double sweep) {
    const int parts = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / (0.76 * std::numbers::pi))));
    const double step = sweep / parts;
    const double handle = 4.0 / 3 * std::tan(step / 4) * radius;
    for (int part = 0; part < parts; ++part) {
        const double start = from + part * step;
        const double end = start + step;
        path.cubicTo(
            onCircle(centre, radius, start) - handle * QPointF(std::sin(start), std::cos(start)),
            onCircle(centre, radius, end) + handle * QPointF(std::sin(end), std::cos(end)),
            onCircle(centre, radius, end));
    }
}

/// A line along a part of the circle, with as few curves as that takes: documents tell each of them. The
/// angles are in degrees, against the clock. Drawn with the clock, as rectangles are, it joins what it
/// touches.
void addArc(QPainterPath& path, const QRectF& circle, double from, double sweep, double line) {
    const QPointF centre = circle.center();
    const double outer = (circle.width() + line) / 2;
    const double inner = (circle.width() - line) / 2;
    const double begin = qDegreesToRadians(from);
    const double along = qDegreesToRadians(sweep);
    path.moveTo(onCircle(centre, outer, begin));
    arcOn(path, centre, outer, begin, along);
    path.lineTo(onCircle(centre, inner, begin + along));
    arcOn(path, centre, inner, begin + along, -along);
    path.closeSubpath();
}

/// A slanting line between two opposite corners of the box.
void addDiagonal(QPainterPath& path, const QRectF& box, double line) {
    const double cut = line * slantWeight / std::sqrt(2.0);
    addPolygon(
        path, {{box.left(), box.top()},
               {box.left() + cut, box.top()},
               {box.right(), box.bottom() - cut},
               {box.right(), box.bottom()},
               {box.right() - cut, box.bottom()},
               {box.left(), box.top() + cut}});
}

/// Thinner than other lines, lest its middle closes up.
void addCross(QPainterPath& path, const QRectF& box, double line) {
    line *= 0.85;
    addDiagonal(path, box, line);
    QPainterPath other;
    addDiagonal(other, box, line);
    path.addPath(QTransform(-1, 0, 0, 1, box.left() + box.right(), 0).map(other).toReversed());
}

} // namespace

PictogramGrid::PictogramGrid(double width, double height, int line)
    : m_line(line), m_width(alike(width, line)), m_height(alike(height, line)) {}

int PictogramGrid::centred(double wanted) const {
    return alike(wanted, m_line);
}

namespace PictogramPaths {

QPainterPath chevron(const PictogramGrid& grid) {
    QPainterPath path = filled();
    addChevron(path, QRectF(0, 0, grid.width(), grid.height()), grid.line() * 1.4);
    return path;
}

QPainterPath chevronBelowBar(const PictogramGrid& grid) {
    QPainterPath path = filled();
    path.addRect(0, 0, grid.width(), grid.line());
    const double top = 2 * grid.line();
    const double inset = std::round(grid.width() * 0.08);
    addChevron(path, QRectF(inset, top, grid.width() - 2 * inset, grid.height() - top), grid.line() * 1.1);
    return path;
}

QPainterPath arrow(const PictogramGrid& grid) {
    QPainterPath path = filled();
    addHead(path, grid, 0);
    return path;
}

QPainterPath barredArrow(const PictogramGrid& grid) {
    QPainterPath path = filled();
    addHead(path, grid, 0);
    const double line = grid.line();
    for (const double bottom : {grid.height() - line, grid.height() - 3 * line})
        path.addRect(0, bottom - line, grid.width(), line);
    return path;
}

QPainterPath arrowToBar(const PictogramGrid& grid) {
    QPainterPath path = filled();
    path.addRect(0, 0, grid.width(), grid.line());
    addHead(path, grid, 2 * grid.line());
    return path;
}

QPainterPath hollowArrow(const PictogramGrid& grid) {
    const double line = grid.line();
    const double middle = grid.middle();
    const double foot = std::round(grid.height() * 0.55);
    const double stem = grid.centred(grid.width() * 0.44) / 2.0;
    const double rise = foot / middle;
    const double down = line * slantWeight * std::sqrt(1 + rise * rise);
    const double inner = (foot - line - down) / rise;
    QPainterPath path = filled();
    addPolygon(
        path, {{middle, 0},
               {2 * middle, foot},
               {middle + stem, foot},
               {middle + stem, double(grid.height())},
               {middle - stem, double(grid.height())},
               {middle - stem, foot},
               {0, foot}});
    cutOut(
        path, {{middle, down},
               {middle + inner, foot - line},
               {middle + stem - line, foot - line},
               {middle + stem - line, grid.height() - line},
               {middle - stem + line, grid.height() - line},
               {middle - stem + line, foot - line},
               {middle - inner, foot - line}});
    return path;
}

QPainterPath cornerArrow(const PictogramGrid& grid) {
    QPainterPath path = filled();
    const double line = grid.line();
    path.addRect(0, 0, std::round(grid.width() * 0.68), line);
    path.addRect(0, 0, line, std::round(grid.height() * 0.68));
    addDiagonal(path, QRectF(0, 0, grid.width(), grid.height()), line * 1.1);
    return path;
}

QPainterPath hookedArrow(const PictogramGrid& grid) {
    const double line = grid.line();
    const double head = grid.centred(grid.height() * 0.64);
    const double stem = grid.height() - head / 2;
    const double radius = (stem - line / 2) / 2;
    const double right = grid.width() - line / 2 - radius;
    QPainterPath hook(QPointF(std::round(grid.width() * 0.42), line / 2));
    hook.lineTo(right, line / 2);
    hook.arcTo(QRectF(right - radius, line / 2, 2 * radius, 2 * radius), 90, -180);
    hook.lineTo(line, stem);
    QPainterPath path = filled();
    path.addPath(stroked(hook, line));
    QPainterPath point;
    addChevron(point, QRectF(0, 0, head, std::round(head * 0.55)), line * 1.1);
    path.addPath(QTransform(0, -1, 1, 0, 0, grid.height()).map(point));
    return path;
}

QPainterPath arrowOutOfCircle(const PictogramGrid& grid) {
    const double line = grid.line();
    const double size = grid.width();
    const double top = std::round(size * 0.1);
    const QRectF circle(top + line / 2, top + line / 2, size - top - line, size - top - line);
    QPainterPath path = filled();
    addArc(path, circle, 92, -274, line);
    const double head = std::round(size * 0.45);
    path.addRect(0, 0, head, line);
    path.addRect(0, 0, line, head);
    addDiagonal(path, QRectF(0, 0, std::round(size * 0.64), std::round(size * 0.64)), line);
    return path;
}

QPainterPath option(const PictogramGrid& grid) {
    const double line = grid.line();
    const double bottom = grid.height() - line / 2;
    QPainterPath way(QPointF(0, line / 2));
    way.lineTo(std::round(grid.width() * 0.3), line / 2);
    way.lineTo(std::round(grid.width() * 0.68), bottom);
    way.lineTo(grid.width(), bottom);
    QPainterPath path = filled();
    path.addPath(stroked(way, line));
    const double start = std::round(grid.width() * 0.6);
    path.addRect(start, 0, grid.width() - start, line);
    return path;
}

QPainterPath loopedSquare(const PictogramGrid& grid) {
    const double line = grid.line();
    const double size = grid.width();
    const double loop = std::max(std::round(size * 0.37), 2 * line + 1);
    const double radius = (loop - line) / 2;
    const double near = loop - line / 2;
    const double far = size - near;
    QPainterPath path = filled();
    for (const double side : {near, far}) {
        path.addRect(loop / 2, side - line / 2, size - loop, line);
        path.addRect(side - line / 2, loop / 2, line, size - loop);
    }
    const auto addLoop = [&](double x, double y, double from) {
        addArc(path, {x - radius, y - radius, 2 * radius, 2 * radius}, from, -270, line);
    };
    addLoop(loop / 2, loop / 2, 270);
    addLoop(size - loop / 2, loop / 2, 180);
    addLoop(size - loop / 2, size - loop / 2, 90);
    addLoop(loop / 2, size - loop / 2, 0);
    return path;
}

QPainterPath crossedBox(const PictogramGrid& grid) {
    const double line = grid.line();
    const QRectF box(0, 0, grid.width(), grid.height());
    QPainterPath path = filled();
    path.addRect(box);
    cutOut(path, QPolygonF(box.adjusted(line, line, -line, -line)));
    const double size = grid.centred(grid.height() * 0.5);
    addCross(path, QRectF(grid.middle() - size / 2, (grid.height() - size) / 2, size, size), line);
    return path;
}

QPainterPath crossedTag(const PictogramGrid& grid) {
    const double line = grid.line();
    const double width = grid.width();
    const double height = grid.height();
    const double point = std::round(height * 0.46);
    const double slope = point / (height / 2);
    const double along = line * slantWeight * std::sqrt(1 + slope * slope);
    const double innerPoint = along + slope * (height / 2 - line);
    QPainterPath path = filled();
    addPolygon(path, {{0, height / 2}, {point, 0}, {width, 0}, {width, height}, {point, height}});
    cutOut(
        path, {{along, height / 2},
               {innerPoint, line},
               {width - line, line},
               {width - line, height - line},
               {innerPoint, height - line}});
    const double size = grid.centred(height * 0.5);
    const double left = std::round((point * 0.7 + width - line - size) / 2);
    addCross(path, QRectF(left, (height - size) / 2, size, size), line);
    return path;
}

QPainterPath wedgeOnBar(const PictogramGrid& grid) {
    QPainterPath path = filled();
    const double bar = std::ceil(grid.line() * 1.3);
    const double top = grid.height() - bar;
    path.addRect(0, top, grid.width(), bar);
    addPolygon(path, {{grid.middle(), 0}, {double(grid.width()), top - grid.line()}, {0, top - grid.line()}});
    return path;
}

} // namespace PictogramPaths

} // namespace quillon
