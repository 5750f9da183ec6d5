#include "caps_layout.h"

#include <quillon/app/views/components/cap_metrics.h>
#include <quillon/app/views/components/ink.h>
#include <quillon/app/views/components/key_pictograms.h>

#include <algorithm>
#include <variant>

namespace quillon {

namespace {

constexpr double unit = PageFonts::unitsPerPoint;
const double capHeight = CapMetrics::heightPerSize * PageFonts::size(PageFont::cap);

/// Of the drawing, in points.
QSizeF signSize(const QString& sign, PageFont font) {
    return QSizeF(KeyPictograms::inkSize(sign, PageFonts::size(font) * unit)) / unit;
}

/// How far below the middle of a cap the line is that its words stand on. Letters and digits have their
/// capitals in the middle, other marks themselves.
double belowMiddle(const QString& text, const PageFonts& fonts) {
    if (standsOnLine(text))
        return fonts.capHeight(PageFont::cap) / 2;
    return -fonts.capInk(text).center().y() / unit;
}

QRectF middled(QPointF middle, QSizeF size) {
    return {QPointF(middle.x() - size.width() / 2, middle.y() - size.height() / 2), size};
}

/// What a cap shows whose left end and middle are at `at`.
Placed shownOn(const QString& cap, QPointF at, double width, double scale, const PageFonts& fonts) {
    const QPointF middle(at.x() + width / 2, at.y());
    if (KeyPictograms::has(cap))
        return PlacedSign{
            .box = middled(middle, signSize(cap, PageFont::cap) * scale),
            .sign = cap,
            .start = {at.x(), at.y() + fonts.capHeight(PageFont::cap) / 2 * scale},
            .width = width,
            .scale = scale};
    const double textWidth = fonts.width(PageFont::cap, cap) * scale;
    return PlacedText{
        .start = {middle.x() - textWidth / 2, at.y() + belowMiddle(cap, fonts) * scale},
        .width = textWidth,
        .font = PageFont::cap,
        .text = cap,
        .scale = scale};
}

/// Where readers that search find what a cap shows.
double startOf(const Placed& shown) {
    const auto* sign = std::get_if<PlacedSign>(&shown);
    return sign ? sign->start.x() : std::get<PlacedText>(shown).start.x();
}

/// Runs of words and single signs, in turn.
QStringList parted(const QString& text) {
    QStringList parts;
    bool isOpen = false;
    for (const QChar c : text) {
        const bool isSign = KeyPictograms::has(c);
        if (isSign || !isOpen)
            parts.append(QString());
        parts.last().append(c);
        isOpen = !isSign;
    }
    return parts;
}

double partWidth(const QString& part, PageFont font, const PageFonts& fonts) {
    return KeyPictograms::has(part) ? signSize(part, font).width() : fonts.width(font, part);
}

} // namespace

CapRow CapRow::of(const QStringList& caps, double room, const PageFonts& fonts) {
    double width = CapMetrics::gap * static_cast<double>(std::max<qsizetype>(0, caps.size() - 1));
    for (const QString& cap : caps)
        width += fonts.capWidth(cap);
    const double scale = std::min(1.0, room / std::max(width, 1.0));
    return {caps, scale, width * scale};
}

void CapRow::place(QPointF at, const PageFonts& fonts, PageLayout& page) const {
    double left = at.x();
    PlacedSign* before = nullptr;
    page.reserve(page.size() + 2 * static_cast<std::size_t>(caps.size()));
    for (const QString& cap : caps) {
        const double capWidth = fonts.capWidth(cap) * scale;
        page.emplace_back(PlacedCap{middled({left + capWidth / 2, at.y()}, {capWidth, capHeight * scale})});
        page.push_back(shownOn(cap, {left, at.y()}, capWidth, scale, fonts));
        // Up to the next one, so that no gap parts the signs of one shortcut for readers that search.
        if (before)
            before->width = startOf(page.back()) - before->start.x();
        before = std::get_if<PlacedSign>(&page.back());
        left += capWidth + CapMetrics::gap * scale;
    }
}

double placeWithSigns(
    const QString& text, QPointF start, PageFont font, PageInk ink, const PageFonts& fonts,
    PageLayout& page) {
    QPointF at = start;
    for (const QString& part : parted(text)) {
        const double width = partWidth(part, font, fonts);
        if (KeyPictograms::has(part)) {
            const QSizeF size = signSize(part, font);
            const double top = at.y() - (fonts.capHeight(font) + size.height()) / 2;
            page.emplace_back(PlacedSign{
                .box = {QPointF(at.x(), top), size},
                .sign = part,
                .font = font,
                .ink = ink,
                .start = at,
                .width = std::min(width, fonts.width(font, part))});
        } else {
            page.emplace_back(
                PlacedText{.start = at, .width = width, .font = font, .ink = ink, .text = part});
        }
        at.rx() += width;
    }
    return at.x() - start.x();
}

double widthWithSigns(const QString& text, PageFont font, const PageFonts& fonts) {
    double width = 0;
    for (const QString& part : parted(text))
        width += partWidth(part, font, fonts);
    return width;
}

} // namespace quillon
