#include "themed_button.h"

#include "focus_ring.h"
#include "keyed_text.h"

#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace quillon {

namespace {

constexpr int horizontalPadding = 18;
constexpr int verticalPadding = 8;
constexpr double cornerRadius = 9;
constexpr double disabledOpacity = 0.5;

} // namespace

ThemedButton::ThemedButton(ThemeSource& themes, const QString& label, QWidget* parent)
    : QPushButton(label, parent), m_themes(themes) {
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_subscription = themes.changed.subscribe([this] { follow(); });
}

void ThemedButton::follow() {
    setFont(labelFont(m_themes.theme().styles));
    updateGeometry();
    update();
}

QSize ThemedButton::sizeHint() const {
    const QFont font = labelFont(m_themes.theme().styles);
    const int width = static_cast<int>(std::ceil(KeyedText(text(), font).width()));
    return QSize(width, QFontMetrics(font).height())
           + QSize(2 * (horizontalPadding + focusRingRoom), 2 * (verticalPadding + focusRingRoom));
}

void ThemedButton::showEvent(QShowEvent* event) {
    follow();
    QPushButton::showEvent(event);
}

void ThemedButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

void ThemedButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = m_themes.theme().palette;
    Colours look = colours(palette);
    const QRectF body = QRectF(rect()).adjusted(focusRingRoom, focusRingRoom, -focusRingRoom, -focusRingRoom);
    if (hasFocus()) {
        painter.setPen(QPen(palette.focusRing, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), cornerRadius + 2, cornerRadius + 2);
    }
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    else if (isDown())
        look.fill = look.fill.darker(112);
    else if (underMouse())
        look.fill = look.fill.lighter(106);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.fill);
    painter.drawRoundedRect(body, cornerRadius, cornerRadius);
    painter.setPen(QPen(look.border, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(body.adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius - 0.5, cornerRadius - 0.5);
    painter.setPen(look.text);
    const KeyedText label(text(), labelFont(m_themes.theme().styles));
    label.paintLine(painter, body, Qt::AlignCenter);
}

} // namespace quillon
