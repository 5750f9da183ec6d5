#include "ink.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quillon {

namespace {

/// Around the text's own box: accents and slanting letters reach beyond it.
constexpr int room = 4;
/// Fainter ink is not seen as a part of the sign.
constexpr double faintest = 0.25;

QImage clearImage(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage drawnText(const QString& text, const QFont& font, const QColor& colour, double ratio) {
    const QFontMetricsF metrics(font);
    const QSizeF size(metrics.horizontalAdvance(text) + 2 * room, metrics.height() + 2 * room);
    QImage image = clearImage(QSize(
        static_cast<int>(std::ceil(size.width() * ratio)),
        static_cast<int>(std::ceil(size.height() * ratio))));
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(colour);
    // From whole pixels, so that all texts are drawn alike.
    const QPointF start(room, room + std::ceil(metrics.ascent()));
    painter.drawText(QPointF(std::round(start.x() * ratio), std::round(start.y() * ratio)) / ratio, text);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

/// Where ink begins and ends along a line of pixels, given how much of each is covered at most.
std::pair<double, double> extent(const std::vector<double>& covered) {
    const auto isInk = [](double part) { return part > 0; };
    const auto first = std::ranges::find_if(covered, isInk);
    if (first == covered.end())
        return {0, 0};
    auto last = covered.end() - 1;
    while (!isInk(*last))
        --last;
    const double begin = static_cast<double>(first - covered.begin()) + 1 - *first;
    const double end = static_cast<double>(last - covered.begin()) + *last;
    return {begin, std::max(begin, end)};
}

QRectF boundsOf(const QImage& image) {
    std::vector<double> columns(static_cast<std::size_t>(image.width()));
    std::vector<double> rows(static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        double& row = rows[static_cast<std::size_t>(y)];
        for (int x = 0; x < image.width(); ++x) {
            const double covered = std::max(0.0, (qAlpha(line[x]) / 255.0 - faintest) / (1 - faintest));
            double& column = columns[static_cast<std::size_t>(x)];
            row = std::max(row, covered);
            column = std::max(column, covered);
        }
    }
    const auto [left, right] = extent(columns);
    const auto [top, bottom] = extent(rows);
    return {QPointF(left, top), QPointF(right, bottom)};
}

} // namespace

Ink Ink::ofText(const QString& text, const QFont& font, const QColor& colour, double ratio) {
    const QImage image = drawnText(text, font, colour, ratio);
    return {image, boundsOf(image)};
}

Ink Ink::ofPath(const QPainterPath& path, QSize size, const QColor& colour) {
    QImage image = clearImage(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, colour);
    painter.end();
    return {image, boundsOf(image)};
}

bool standsOnLine(const QString& text) {
    static const QString byHeight = QStringLiteral(",.'\"`^_´¨‘’“”");
    return std::ranges::any_of(
        text, [](QChar c) { return c.isLetterOrNumber() || c.isSurrogate() || byHeight.contains(c); });
}

} // namespace quillon
