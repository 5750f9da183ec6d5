#include "symbol_tab_bar.h"

#include "device_pixels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr int narrowestTab = 84;
constexpr int sidePadding = 12;
constexpr int endPadding = 7;
constexpr int labelGap = 3;
/// Around the rounded ground of a tab, for the ring that shows the keyboard's focus and for its neighbours.
constexpr int margin = 3;
constexpr double cornerRadius = 8;
constexpr double groundOpacity = 0.08;
constexpr double hoverOpacity = 0.04;

} // namespace

SymbolTabBar::SymbolTabBar(ThemeSource& themes, QWidget* parent) : QTabBar(parent), m_themes(themes) {
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_subscription = themes.changed.subscribe([this] { follow(); });
    follow();
}

void SymbolTabBar::addSymbolTab(Symbol symbol, const QString& label) {
    m_symbols.push_back(symbol);
    addTab(label);
}

void SymbolTabBar::follow() {
    setFont(m_themes.theme().styles.callout);
    updateGeometry();
    update();
}

int SymbolTabBar::symbolSize() const {
    return static_cast<int>(std::lround(m_themes.theme().symbolSize() * 1.5));
}

QSize SymbolTabBar::tabSizeHint(int index) const {
    const QFontMetrics metrics(semibold(m_themes.theme().styles.callout));
    const int width = metrics.horizontalAdvance(tabText(index)) + 2 * sidePadding;
    const int height = symbolSize() + labelGap + metrics.height() + 2 * endPadding;
    return QSize(std::max(width, narrowestTab), height) + QSize(2 * margin, 2 * margin);
}

void SymbolTabBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < count(); ++index)
        paintTab(painter, index);
}

void SymbolTabBar::paintTab(QPainter& painter, int index) const {
    const Palette& palette = m_themes.theme().palette;
    const bool isSelected = index == currentIndex();
    const QRectF ground = QRectF(tabRect(index)).adjusted(margin, margin, -margin, -margin);
    const bool isHovered = underMouse() && tabRect(index).contains(mapFromGlobal(QCursor::pos()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.primaryAt(isSelected ? groundOpacity : isHovered ? hoverOpacity : 0));
    painter.drawRoundedRect(ground, cornerRadius, cornerRadius);
    if (isSelected && hasFocus()) {
        painter.setPen(QPen(palette.focusRing, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(
            ground.adjusted(-1.25, -1.25, 1.25, 1.25), cornerRadius + 1, cornerRadius + 1);
    }

    const QColor colour = isSelected ? palette.focusRing : palette.secondary;
    const int size = symbolSize();
    const QPointF symbolAt(ground.center().x() - size / 2.0, ground.top() + endPadding);
    painter.drawPixmap(
        onDevicePixel(painter, symbolAt),
        symbolPixmap(m_symbols[static_cast<std::size_t>(index)], size, colour, devicePixelRatioF()));
    painter.setFont(isSelected ? semibold(font()) : font());
    painter.setPen(isSelected ? palette.primary : palette.secondary);
    const QRectF label = ground.adjusted(0, endPadding + size + labelGap, 0, -endPadding);
    painter.drawText(label, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextDontClip, tabText(index));
}

} // namespace quillon
