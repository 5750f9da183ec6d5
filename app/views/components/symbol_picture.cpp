#include "symbol_picture.h"

#include "svg_strokes.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <map>

namespace quillon {

namespace {

constexpr int units = 24;
constexpr double middle = units / 2.0;

/// How many device pixels a line of so many covers, more or less.
int wholePixels(double width) {
    return std::max(1, static_cast<int>(std::lround(width)));
}

/// Where the units of one axis are in device pixels.
class FittedAxis {
  public:
    /// For symbols `pixels` wide whose lines are mostly about `mainLine` pixels wide. A symbol that is the
    /// same on both sides of its middle stays so: its middle is where such a line can stand.
    FittedAxis(int pixels, int mainLine)
        : m_scale(static_cast<double>(pixels) / units), m_mainLine(mainLine),
          m_middle((pixels - (pixels - mainLine) % 2) / 2.0) {}

    /// A straight line across this axis, about `width` pixels wide, has its middle here.
    void addLine(double at, int width) {
        const double besideMainLines = (width - m_mainLine) % 2 == 0 ? 0 : 0.5;
        const double wanted = (at - middle) * m_scale;
        // What is half-way goes the same way on both sides, whatever its last digits are.
        constexpr double digits = 1e-6;
        const double steps = std::round(std::abs(wanted) - besideMainLines - digits);
        const double fitted = std::copysign(steps + besideMainLines, wanted);
        m_lines.emplace(at, m_middle + fitted);
    }

    double place(double at) const {
        const auto after = m_lines.lower_bound(at);
        if (m_lines.empty())
            return m_middle + (at - middle) * m_scale;
        if (after == m_lines.end())
            return m_lines.rbegin()->second + (at - m_lines.rbegin()->first) * m_scale;
        if (after == m_lines.begin() || after->first == at)
            return after->second + (at - after->first) * m_scale;
        const auto before = std::prev(after);
        const double share = (at - before->first) / (after->first - before->first);
        return std::lerp(before->second, after->second, share);
    }

  private:
    double m_scale;
    int m_mainLine;
    double m_middle;
    std::map<double, double> m_lines;
};

/// The drawing's units on the device's pixels.
class FittedGrid {
  public:
    FittedGrid(const std::vector<SvgStroke>& strokes, int pixels)
        : m_scale(static_cast<double>(pixels) / units), m_x(pixels, mainLine(strokes, pixels)),
          m_y(pixels, mainLine(strokes, pixels)) {
        for (const SvgStroke& stroke : strokes)
            addLines(stroke);
    }

    QPointF place(QPointF at) const { return {m_x.place(at.x()), m_y.place(at.y())}; }
    double width(const SvgStroke& stroke) const { return std::max(1.0, stroke.width * m_scale); }

    /// A line with its points in their places.
    QPainterPath fitted(QPainterPath line) const {
        for (int i = 0; i < line.elementCount(); ++i) {
            const QPointF at = place(line.elementAt(i));
            line.setElementPositionAt(i, at.x(), at.y());
        }
        return line;
    }
    /// An area, which keeps its shape.
    QPainterPath moved(const QPainterPath& area) const {
        const QPointF centre = area.boundingRect().center();
        const QPointF at = place(centre);
        return QTransform()
            .translate(at.x(), at.y())
            .scale(m_scale, m_scale)
            .translate(-centre.x(), -centre.y())
            .map(area);
    }

  private:
    /// The width of the widest lines; where there are none, one that leaves the middle in the middle.
    static int mainLine(const std::vector<SvgStroke>& strokes, int pixels) {
        double widest = 0;
        for (const SvgStroke& stroke : strokes)
            widest = std::max(widest, stroke.width);
        return widest > 0 ? wholePixels(widest * pixels / units) : pixels;
    }

    void addLines(const SvgStroke& stroke) {
        constexpr double straight = 0.01;
        for (int i = 1; stroke.width > 0 && i < stroke.path.elementCount(); ++i) {
            if (stroke.path.elementAt(i).type != QPainterPath::LineToElement)
                continue;
            const QPointF from = stroke.path.elementAt(i - 1);
            const QPointF to = stroke.path.elementAt(i);
            if (std::abs(from.x() - to.x()) < straight)
                m_x.addLine(to.x(), wholePixels(width(stroke)));
            else if (std::abs(from.y() - to.y()) < straight)
                m_y.addLine(to.y(), wholePixels(width(stroke)));
        }
    }

    double m_scale;
    FittedAxis m_x;
    FittedAxis m_y;
};

} // namespace

QPixmap symbolPicture(const QString& file, int size, double ratio) {
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    const std::vector<SvgStroke> strokes = svgStrokes(file, units);
    const FittedGrid grid(strokes, pixmap.width());
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const SvgStroke& stroke : strokes) {
        if (stroke.width > 0)
            painter.strokePath(
                grid.fitted(stroke.path),
                QPen(Qt::black, grid.width(stroke), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        else
            painter.fillPath(grid.moved(stroke.path), Qt::black);
    }
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace quillon
