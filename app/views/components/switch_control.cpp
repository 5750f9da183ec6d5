#include "switch_control.h"

#include "focus_ring.h"
#include <QPainter>

namespace quillon {

namespace {

constexpr QSizeF trackSize(38, 22);
constexpr double knobGap = 2;
constexpr double offOpacity = 0.30;

} // namespace

SwitchControl::SwitchControl(ThemeSource& themes, QWidget* parent) : QCheckBox(parent), m_themes(themes) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_subscription = themes.changed.subscribe([this] { update(); });
}

QSize SwitchControl::sizeHint() const {
    return (trackSize + QSizeF(2 * focusRingRoom, 2 * focusRingRoom)).toSize();
}

void SwitchControl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = m_themes.theme().palette;
    const QRectF track(QPointF(focusRingRoom, focusRingRoom), trackSize);
    const double radius = track.height() / 2;
    if (hasFocus()) {
        painter.setPen(QPen(palette.focusRing, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(track.adjusted(-2, -2, 2, 2), radius + 2, radius + 2);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(isChecked() ? palette.accent : palette.primaryAt(offOpacity));
    painter.drawRoundedRect(track, radius, radius);

    const double knob = track.height() - 2 * knobGap;
    const bool isAtRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    const double x = isAtRight ? track.right() - knobGap - knob : track.left() + knobGap;
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(x, track.top() + knobGap, knob, knob));
}

} // namespace quillon
