#include "toolbar_button.h"

#include <quillon/app/views/components/focus_ring.h>

#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace quillon {

namespace {

constexpr int sidePadding = 10;
constexpr int verticalPadding = 6;
constexpr int gap = 6;
constexpr int arrowWidth = 8;
constexpr double arrowHeight = 4;
constexpr double cornerRadius = 8;
constexpr double edgeOpacity = 0.16;
constexpr double disabledOpacity = 0.45;

void paintArrow(QPainter& painter, const QPointF& centre) {
    QPainterPath arrow(centre + QPointF(-arrowWidth / 2.0 + 0.5, -arrowHeight / 2));
    arrow.lineTo(centre + QPointF(0, arrowHeight / 2));
    arrow.lineTo(centre + QPointF(arrowWidth / 2.0 - 0.5, -arrowHeight / 2));
    painter.drawPath(arrow);
}

} // namespace

ToolbarButton::ToolbarButton(ThemeSource& themes, Symbol symbol, const QString& label, QWidget* parent)
    : ThemedButton(themes, label, parent), m_themes(themes), m_symbol(symbol) {
    setCursor(Qt::ArrowCursor);
}

QSize ToolbarButton::sizeHint() const {
    const Theme& theme = m_themes.theme();
    const QFontMetrics metrics(labelFont(theme.styles));
    return {
        2 * (focusRingRoom + sidePadding) + theme.symbolSize() + gap + metrics.horizontalAdvance(text())
            + arrowRoom(),
        2 * (focusRingRoom + verticalPadding) + metrics.height()};
}

ThemedButton::Colours ToolbarButton::colours(const Palette& palette) const {
    return {.fill = palette.card, .border = palette.primaryAt(edgeOpacity), .text = palette.primary};
}

void ToolbarButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(focusRingRoom, focusRingRoom, -focusRingRoom, -focusRingRoom);
    if (hasFocus()) {
        painter.setPen(QPen(m_themes.theme().palette.focusRing, 1.5));
        painter.drawRoundedRect(body.adjusted(-2.25, -2.25, 2.25, 2.25), cornerRadius + 2, cornerRadius + 2);
    }
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    paintBody(painter, body.adjusted(0.5, 0.5, -0.5, -0.5));
    paintSymbol(painter);
    paintLabel(painter);
    if (menu())
        paintMenuArrow(painter);
}

void ToolbarButton::paintBody(QPainter& painter, const QRectF& edge) const {
    const Palette& palette = m_themes.theme().palette;
    const Colours look = colours(palette);
    painter.setPen(QPen(look.border, 1));
    painter.setBrush(look.fill);
    painter.drawRoundedRect(edge, cornerRadius - 0.5, cornerRadius - 0.5);
    if (isDown() || (underMouse() && isEnabled())) {
        painter.setBrush(palette.primaryAt(isDown() ? 0.14 : 0.05));
        painter.drawRoundedRect(edge, cornerRadius - 0.5, cornerRadius - 0.5);
    }
}

void ToolbarButton::paintSymbol(QPainter& painter) const {
    const Theme& theme = m_themes.theme();
    const QRect inner = contents();
    const int size = theme.symbolSize();
    const QRect place(inner.left(), inner.top() + (inner.height() - size) / 2, size, size);
    painter.drawPixmap(
        mirrored(place).topLeft(),
        symbolPixmap(m_symbol, size, theme.palette.secondary, devicePixelRatioF(), layoutDirection()));
}

void ToolbarButton::paintLabel(QPainter& painter) const {
    const Theme& theme = m_themes.theme();
    const QRect place = contents().adjusted(theme.symbolSize() + gap, 0, -arrowRoom(), 0);
    painter.setFont(labelFont(theme.styles));
    painter.setPen(colours(theme.palette).text);
    painter.drawText(mirrored(place), Qt::AlignCenter | Qt::TextDontClip, text());
}

void ToolbarButton::paintMenuArrow(QPainter& painter) const {
    const QRect inner = contents();
    const QRect place(inner.right() + 1 - arrowWidth, inner.top(), arrowWidth, inner.height());
    painter.setPen(QPen(m_themes.theme().palette.secondary, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    paintArrow(painter, QRectF(mirrored(place)).center());
}

QRect ToolbarButton::contents() const {
    return rect().adjusted(focusRingRoom + sidePadding, 0, -focusRingRoom - sidePadding, 0);
}

QRect ToolbarButton::mirrored(const QRect& place) const {
    return QStyle::visualRect(layoutDirection(), contents(), place);
}

int ToolbarButton::arrowRoom() const {
    return menu() ? gap + arrowWidth : 0;
}

} // namespace quillon
