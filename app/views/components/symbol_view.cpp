#include "symbol_view.h"

#include "accessible_roles.h"
#include "device_pixels.h"

#include <QPainter>

namespace quillon {

SymbolView::SymbolView(ThemeSource& themes, Symbol symbol, int size, QColor Palette::*colour, QWidget* parent)
    : ThemedWidget(themes, parent), m_symbol(symbol), m_size(size), m_colour(colour) {
    readAs(*this, ReadAs::decoration);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SymbolView::setSymbol(Symbol symbol) {
    m_symbol = symbol;
    update();
}

void SymbolView::setSize(int size) {
    m_size = size;
    updateGeometry();
    update();
}

void SymbolView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPointF origin((width() - m_size) / 2, (height() - m_size) / 2);
    painter.drawPixmap(
        onDevicePixel(painter, origin),
        symbolPixmap(m_symbol, m_size, theme().palette.*m_colour, devicePixelRatioF(), layoutDirection()));
}

} // namespace quillon
