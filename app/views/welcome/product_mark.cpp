#include "product_mark.h"

#include <quillon/app/views/components/accessible_roles.h>
#include <quillon/app/views/components/symbols.h>

#include <QPainter>

namespace quillon {

ProductMark::ProductMark(ThemeSource& themes, int size, QWidget* parent) : ThemedWidget(themes, parent) {
    readAs(*this, ReadAs::decoration);
    setFixedSize(size, size);
}

void ProductMark::paintEvent(QPaintEvent*) {
    QPainter(this).drawPixmap(0, 0, productMark(width(), devicePixelRatioF()));
}

} // namespace quillon
