#include "step_marker.h"

#include "welcome_texts.h"

#include <quillon/app/views/components/accessible_roles.h>
#include <quillon/app/views/components/symbols.h>

#include <QPainter>

namespace quillon {

namespace {

constexpr int checkSize = 16;
constexpr double fillOpacity = 0.08;
/// Of the marker; larger fonts do not make its number burst it.
constexpr double largestNumber = 0.55;

} // namespace

StepMarker::StepMarker(ThemeSource& themes, int number, QWidget* parent)
    : ThemedWidget(themes, parent), m_number(number) {
    readAs(*this, ReadAs::text);
    setFixedSize(size, size);
    nameIt();
}

void StepMarker::setDone(bool done) {
    if (std::exchange(m_isDone, done) == done)
        return;
    nameIt();
    update();
}

void StepMarker::nameIt() {
    setAccessibleName(m_isDone ? WelcomeTexts::stepDone(m_number) : WelcomeTexts::step(m_number));
}

void StepMarker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = theme().palette;
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_isDone ? palette.accent : palette.primaryAt(fillOpacity));
    painter.drawEllipse(QRectF(rect()));
    if (m_isDone) {
        constexpr int inset = (size - checkSize) / 2;
        painter.drawPixmap(
            inset, inset, symbolPixmap(Symbol::checkmark, checkSize, palette.onAccent, devicePixelRatioF()));
        return;
    }
    const QFont& headline = theme().styles.headline;
    painter.setFont(atSize(headline, std::min(pixelSize(headline), size * largestNumber)));
    painter.setPen(palette.primary);
    painter.drawText(rect(), Qt::AlignCenter, QString::number(m_number));
}

} // namespace quillon
