#include "app_icon_view.h"

#include "accessible_roles.h"
#include "symbols.h"

#include <QPainter>

#include <utility>

namespace quillon {

namespace {

constexpr double placeholderRadiusPerSize = 0.22;

} // namespace

AppIconView::AppIconView(ThemeSource& themes, AppIconCache& icons, int size, QWidget* parent)
    : ThemedWidget(themes, parent), m_icons(icons), m_size(size) {
    readAs(*this, ReadAs::decoration);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void AppIconView::setBundleID(std::string bundleID) {
    if (bundleID == m_bundleID && !m_showsProductMark)
        return;
    m_bundleID = std::move(bundleID);
    m_showsProductMark = false;
    update();
}

void AppIconView::showProductMark() {
    m_showsProductMark = true;
    update();
}

void AppIconView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF square(
        QRect((width() - m_size) / 2, (height() - m_size) / 2, m_size, m_size)); // whole pixels
    const double ratio = devicePixelRatioF();
    const QPixmap icon =
        m_showsProductMark ? productMark(m_size, ratio) : m_icons.pixmap(m_bundleID, m_size, ratio);
    if (!icon.isNull()) {
        const QSizeF size = icon.deviceIndependentSize();
        painter.drawPixmap(square.center() - QPointF(size.width() / 2, size.height() / 2), icon);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().palette.primaryAt(0.06));
    const double radius = m_size * placeholderRadiusPerSize;
    painter.drawRoundedRect(square, radius, radius);
}

} // namespace quillon
