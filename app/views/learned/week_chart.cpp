#include "week_chart.h"

#include "learned_texts.h"

#include <QFontMetricsF>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr int barsHeight = 64;
constexpr int gap = 6;
constexpr int widestSlot = 48;
constexpr double barShare = 0.34; ///< of a week's slot
constexpr double barGap = 2;
constexpr double leastBar = 2;
constexpr double cornerRadius = 2;
constexpr double swatch = 9;
constexpr int labelEvery = 3;

int lineHeight(const QFont& font) {
    return static_cast<int>(std::ceil(QFontMetricsF(font).height()));
}

double slotWidth(const QRect& place, std::size_t weeks) {
    return std::min<double>(widestSlot, static_cast<double>(place.width()) / static_cast<double>(weeks));
}

/// The slot of a week, from left to right or the other way round where people read so.
QRectF slotOf(const QPainter& painter, const QRect& place, std::size_t week, std::size_t weeks) {
    const double width = slotWidth(place, weeks);
    const double offset = static_cast<double>(week) * width;
    const bool isMirrored = painter.layoutDirection() == Qt::RightToLeft;
    const double left = isMirrored ? place.left() + place.width() - offset - width : place.left() + offset;
    return {left, static_cast<double>(place.top()), width, static_cast<double>(place.height())};
}

void paintBar(QPainter& painter, const QRectF& room, Count value, Count largest, const QColor& colour) {
    if (value == 0)
        return;
    const double share = static_cast<double>(value) / static_cast<double>(largest);
    const double height = std::max(leastBar, std::round(room.height() * share));
    painter.setBrush(colour);
    painter.drawRoundedRect(
        QRectF(room.left(), room.bottom() - height, room.width(), height), cornerRadius, cornerRadius);
}

} // namespace

WeekChart::WeekChart(const Theme& theme)
    : m_font(theme.styles.caption), m_typed(theme.palette.accent), m_clicked(theme.palette.primaryAt(0.38)),
      m_text(theme.palette.secondary), m_line(theme.palette.divider) {}

int WeekChart::height() const {
    return 2 * lineHeight(m_font) + barsHeight + 2 * gap;
}

void WeekChart::paint(QPainter& painter, const QRect& place, const std::vector<WeekBar>& weeks) const {
    if (weeks.empty())
        return;
    const int line = lineHeight(m_font);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(m_font);
    paintLegend(painter, {place.left(), place.top(), place.width(), line});
    paintBars(painter, {place.left(), place.top() + line + gap, place.width(), barsHeight}, weeks);
    paintLabels(
        painter, {place.left(), place.top() + line + barsHeight + 2 * gap, place.width(), line}, weeks);
    painter.restore();
}

void WeekChart::paintLegend(QPainter& painter, const QRect& line) const {
    double x = line.left();
    const auto add = [&](const QColor& colour, const QString& words) {
        const auto mirrored = [&](const QRectF& rect) {
            return QStyle::visualRect(painter.layoutDirection(), line, rect.toAlignedRect());
        };
        const double width = std::ceil(QFontMetricsF(m_font).horizontalAdvance(words));
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        const double top = std::round(line.top() + (line.height() - swatch) / 2);
        painter.drawRoundedRect(mirrored({x, top, swatch, swatch}), cornerRadius, cornerRadius);
        painter.setPen(m_text);
        const QRectF place(x + swatch + gap, line.top(), width, line.height());
        painter.drawText(mirrored(place), Qt::AlignVCenter | Qt::TextSingleLine, words);
        x = place.right() + 2 * gap;
    };
    add(m_typed, LearnedTexts::typed());
    add(m_clicked, LearnedTexts::clicked());
}

void WeekChart::paintBars(QPainter& painter, const QRect& box, const std::vector<WeekBar>& weeks) const {
    Count largest = 1;
    for (const WeekBar& week : weeks)
        largest = std::max({largest, week.clicked, week.typed});
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < weeks.size(); ++i) {
        const QRectF slot = slotOf(painter, box, i, weeks.size());
        const double width = std::floor(slot.width() * barShare);
        const double left = std::round(slot.left() + (slot.width() - 2 * width - barGap) / 2);
        const QRectF first(left, slot.top(), width, slot.height());
        paintBar(painter, first, weeks[i].typed, largest, m_typed);
        paintBar(painter, first.translated(width + barGap, 0), weeks[i].clicked, largest, m_clicked);
    }
    painter.setPen(m_line);
    const QRectF from = slotOf(painter, box, 0, weeks.size());
    const QRectF to = slotOf(painter, box, weeks.size() - 1, weeks.size());
    const double y = box.bottom() + 1.5;
    painter.drawLine(
        QPointF(std::min(from.left(), to.left()), y), QPointF(std::max(from.right(), to.right()), y));
}

/// This week always has its day; the others only as far as they stand clear of each other.
void WeekChart::paintLabels(QPainter& painter, const QRect& line, const std::vector<WeekBar>& weeks) const {
    painter.setPen(m_text);
    for (std::size_t i = 0; i < weeks.size(); ++i) {
        if ((weeks.size() - 1 - i) % labelEvery != 0)
            continue;
        const QString day = LearnedTexts::weekLabel(weeks[i].monday);
        const QPointF centre = slotOf(painter, line, i, weeks.size()).center();
        const double width = std::ceil(QFontMetricsF(m_font).horizontalAdvance(day)) + 1;
        QRectF place(centre.x() - width / 2, line.top(), width, line.height());
        place.moveLeft(std::clamp(
            place.left(), static_cast<double>(line.left()),
            std::max<double>(line.left(), line.left() + line.width() - width)));
        painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, day);
    }
}

} // namespace quillon
