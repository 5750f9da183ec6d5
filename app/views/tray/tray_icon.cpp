#include "tray_icon.h"

#include <quillon/app/views/components/palette.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// The measures of the sign at one size, all in whole pixels, so that its straight edges fall between
/// pixels: a frame with round corners, in it a square whose sides go on into a loop at each corner.
struct Measures {
    int margin; ///< around the frame
    int stroke; ///< width of every line
    int radius; ///< of the frame's corners
    int start;  ///< from the picture's edge to the first loop
    int loop;   ///< a loop from edge to edge

    static Measures of(int size) {
        constexpr double strokePart = 1.15 / 16;
        constexpr double radiusPart = 0.23;
        const int stroke = std::max(1, static_cast<int>(std::lround(size * strokePart)));
        const int margin = size / 32;
        const int start = margin + stroke + std::max(2, size / 10);
        const int sign = size - 2 * start;
        return {
            .margin = margin,
            .stroke = stroke,
            .radius = static_cast<int>(std::lround(size * radiusPart)),
            .start = start,
            // As wide inside as the square between the loops.
            .loop = static_cast<int>(std::lround((sign + 2 * stroke) / 3.0)),
        };
    }
};

QPainterPath frame(const Measures& measures, int size) {
    const int side = size - 2 * measures.margin;
    const QRectF outer(measures.margin, measures.margin, side, side);
    const auto stroke = static_cast<double>(measures.stroke);
    const double innerRadius = std::max(1.0, measures.radius - stroke);
    QPainterPath path;
    path.addRoundedRect(outer, measures.radius, measures.radius);
    path.addRoundedRect(outer.adjusted(stroke, stroke, -stroke, -stroke), innerRadius, innerRadius);
    return path;
}

/// Three quarters of a disc; the last one is a square that points down and right.
QPainterPath drop(double from, double to) {
    const double middle = (from + to) / 2;
    QPainterPath path;
    path.moveTo(to, to);
    path.lineTo(to, middle);
    path.arcTo(QRectF(from, from, to - from, to - from), 0, 270);
    path.closeSubpath();
    return path;
}

/// The upper left loop.
QPainterPath loop(const Measures& measures) {
    const int end = measures.start + measures.loop;
    return drop(measures.start, end)
        .subtracted(drop(measures.start + measures.stroke, end - measures.stroke));
}

QPainterPath square(const Measures& measures, int size) {
    const int from = measures.start + measures.loop - measures.stroke;
    const QRectF outer(from, from, size - 2 * from, size - 2 * from);
    const auto stroke = static_cast<double>(measures.stroke);
    QPainterPath path;
    path.addRect(outer);
    path.addRect(outer.adjusted(stroke, stroke, -stroke, -stroke));
    return path;
}

QPainterPath sign(int size) {
    const Measures measures = Measures::of(size);
    QPainterPath path = frame(measures, size).united(square(measures, size));
    const QPainterPath first = loop(measures);
    for (const double across : {1.0, -1.0})
        for (const double down : {1.0, -1.0})
            path = path.united(
                QTransform(across, 0, 0, down, across < 0 ? size : 0, down < 0 ? size : 0).map(first));
    return path;
}

} // namespace

IconPixels trayIcon(ColourScheme tray, int size) {
    QImage drawn(size, size, QImage::Format_ARGB32);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(sign(size), Palette::forScheme(tray).primary);
    painter.end();
    IconPixels pixels{.width = size, .height = size, .argb = {}};
    for (int y = 0; y < size; ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(drawn.constScanLine(y));
        pixels.argb.insert(pixels.argb.end(), row, row + size);
    }
    return pixels;
}

} // namespace quillon
