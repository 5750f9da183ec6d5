#include "area_painter.h"

#include <quillon/app/views/components/device_pixels.h>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double cardRadius = 11;
constexpr double rowRadius = 6;
constexpr double focusRingWidth = 1.5;

void paintRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& fill, const QPen& pen) {
    painter.setPen(pen);
    painter.setBrush(fill);
    const double inset = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
}

} // namespace

void AreaPainter::paint(QPainter& painter, const QRectF& visible, const RowHighlights& highlights) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto); // each text by its own script
    paintCards(painter, visible);
    for (const DividerBox& divider : m_layout.dividers) {
        if (divider.rect.intersects(visible))
            painter.fillRect(onDevicePixels(painter, divider.rect), m_theme.palette.divider);
    }
    paintHighlights(painter, highlights);
    for (const HeadingBox& heading : m_layout.headings) {
        if (heading.rect.intersects(visible))
            paintHeading(painter, heading);
    }
    for (const CardBox& card : m_layout.cards) {
        if (!card.rect.intersects(visible))
            continue;
        for (std::size_t row = card.firstRow; row < card.endRow; ++row) {
            if (m_layout.rows[row].rect.intersects(visible))
                paintRow(painter, m_layout.rows[row]);
        }
    }
}

void AreaPainter::paintCards(QPainter& painter, const QRectF& visible) const {
    for (const CardBox& card : m_layout.cards) {
        if (!card.rect.intersects(visible))
            continue;
        painter.fillRect(m_card.inside(painter, card.rect), m_theme.palette.card);
        m_card.paintFrame(painter, card.rect);
    }
}

NinePatch AreaPainter::cardPicture(const Palette& palette, double ratio) {
    return roundedBox(cardRadius, ratio, palette.card, palette.cardBorder);
}

void AreaPainter::paintHighlights(QPainter& painter, const RowHighlights& highlights) const {
    if (highlights.hovered) {
        paintRounded(
            painter, m_layout.rows[*highlights.hovered].rect, rowRadius, m_theme.palette.hover, Qt::NoPen);
    }
    if (highlights.focused) {
        const QPen ring(m_theme.palette.focusRing, focusRingWidth);
        paintRounded(painter, m_layout.rows[*highlights.focused].rect, rowRadius, Qt::transparent, ring);
    }
}

void AreaPainter::paintHeading(QPainter& painter, const HeadingBox& heading) const {
    const bool isTitle = heading.kind == HeadingBox::Kind::card;
    const MeasuredFont& font = heading.font(m_measure);
    const QString& text = heading.text(m_content);
    if (const auto icon = m_content.cards[heading.card].icon; isTitle && icon) {
        const int size = headingIconSize(m_measure);
        const QPointF origin(heading.rect.left(), heading.rect.center().y() - size / 2.0);
        painter.drawPixmap(
            onDevicePixel(painter, origin),
            symbolPixmap(*icon, size, m_theme.palette.pin, painter.device()->devicePixelRatioF()));
    }
    const double room = heading.rect.right() - heading.textLeft;
    const QString shown =
        font.width(text) > room ? font.metrics().elidedText(text, Qt::ElideRight, room) : text;
    painter.setFont(font.font());
    painter.setPen(isTitle ? m_theme.palette.primary : m_theme.palette.secondary);
    painter.drawText(
        QPointF(heading.textLeft, heading.rect.top() + std::ceil(font.metrics().ascent())), shown);
}

void AreaPainter::paintRow(QPainter& painter, const RowBox& row) const {
    const PreparedEntry& entry = m_sheet.entries[row.entry];
    const QRectF inner = row.inner();
    painter.translate(inner.topLeft());
    paintRowParts(painter, entry, RowArranger(m_measure, inner.width()).arrange(entry, row.submenu));
    painter.translate(-inner.topLeft());
}

void AreaPainter::paintRowParts(
    QPainter& painter, const PreparedEntry& entry, const RowArrangement& parts) const {
    const Palette& palette = m_theme.palette;
    for (const PlacedText& line : parts.title)
        paintText(painter, line, m_measure.title, entry.enabled ? palette.primary : palette.dimmed);
    if (parts.submenu)
        paintText(painter, *parts.submenu, m_measure.submenu, palette.secondary);
    if (parts.pin) {
        const double ratio = painter.device()->devicePixelRatioF();
        const int size = static_cast<int>(parts.pin->width());
        painter.drawPixmap(
            onDevicePixel(painter, parts.pin->topLeft()),
            symbolPixmap(Symbol::pinFill, size, palette.pin, ratio));
    }
    if (parts.badge) {
        const QRectF& pill = parts.badge->rect;
        paintRounded(painter, pill, pill.height() / 2, palette.badge, Qt::NoPen);
        paintText(painter, *parts.badge, m_measure.caption, palette.badgeText, RowArranger::badgePadding);
    }
    for (const PlacedText& line : parts.note)
        paintText(painter, line, m_measure.note, palette.secondary);

    if (parts.keysScale < 1) {
        painter.save();
        painter.translate(parts.keys.topLeft());
        painter.scale(parts.keysScale, parts.keysScale);
        m_measure.keys.paint(painter, QPointF(0, 0), entry.shortcut);
        painter.restore();
    } else {
        m_measure.keys.paint(painter, parts.keys.topLeft(), entry.shortcut);
    }
}

void AreaPainter::paintText(
    QPainter& painter, const PlacedText& text, const MeasuredFont& font, const QColor& colour,
    double padding) const {
    painter.setFont(font.font());
    painter.setPen(colour);
    painter.drawText(QPointF(text.rect.left() + padding, text.baseline), text.text);
}

} // namespace quillon
