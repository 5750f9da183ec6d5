#include "prominent_button.h"

#include "colours.h"

#include <QPainter>

namespace quillon {

namespace {

constexpr int horizontalPadding = 18;
constexpr int verticalPadding = 8;
constexpr double cornerRadius = 9;
/// Between the button and the ring that shows the keyboard's focus.
constexpr double ringGap = 3;

} // namespace

ProminentButton::ProminentButton(ThemeSource& themes, const QString& label, QWidget* parent)
    : QPushButton(label, parent), m_themes(themes) {
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_subscription = themes.changed.subscribe([this] { follow(); });
    follow();
}

void ProminentButton::follow() {
    setFont(m_themes.theme().styles.headline);
    updateGeometry();
    update();
}

QSize ProminentButton::sizeHint() const {
    const int ring = static_cast<int>(2 * ringGap);
    return fontMetrics().size(Qt::TextSingleLine, text())
           + QSize(2 * horizontalPadding + ring, 2 * verticalPadding + ring);
}

void ProminentButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = m_themes.theme().palette;
    const QRectF body = QRectF(rect()).adjusted(ringGap, ringGap, -ringGap, -ringGap);
    if (hasFocus()) {
        painter.setPen(QPen(palette.focusRing, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), cornerRadius + 2, cornerRadius + 2);
    }
    QColor fill = palette.accent;
    if (isDown())
        fill = fill.darker(112);
    else if (underMouse())
        fill = fill.lighter(106);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(body, cornerRadius, cornerRadius);
    painter.setPen(palette.onAccent);
    painter.drawText(body, Qt::AlignCenter, text());
}

} // namespace quillon
