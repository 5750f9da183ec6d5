#include "step_slider.h"

#include "focus_ring.h"
#include "step_slider_accessible.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double handleSize = 18;
constexpr double grooveHeight = 4;
constexpr double restOpacity = 0.18;
constexpr double handleEdgeOpacity = 0.25;
constexpr double tenth = 10;

} // namespace

StepSlider::StepSlider(ThemeSource& themes, SliderTenths tenths, Wording wording, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), m_themes(themes), m_wording(std::move(wording)) {
    installStepSliderAccessible();
    setRange(tenths.first, tenths.last);
    setSingleStep(1);
    setPageStep(2);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QAbstractSlider::actionTriggered, this, &StepSlider::stepFrom);
    m_subscription = themes.changed.subscribe([this] { update(); });
    setNumber(tenths.first / tenth);
}

void StepSlider::setNumber(double number) {
    m_number = number;
    const QSignalBlocker quiet(this);
    setValue(static_cast<int>(std::lround(std::clamp(number * tenth, double(minimum()), double(maximum())))));
    tellReaders();
    update();
}

/// Any movement by the user comes by here: keys, the pointer and screen readers.
void StepSlider::stepFrom(int action) {
    const double exact = std::clamp(m_number * tenth, -1e6, 1e6);
    const bool isUp = action == SliderSingleStepAdd || action == SliderPageStepAdd;
    const bool isDown = action == SliderSingleStepSub || action == SliderPageStepSub;
    const bool leadsAway = (isUp && exact > maximum()) || (isDown && exact < minimum());
    if (leadsAway)
        return;
    const bool isBetween = std::abs(exact - std::round(exact)) > 1e-6;
    if (isBetween && action == SliderSingleStepAdd)
        setSliderPosition(static_cast<int>(std::floor(exact)) + 1);
    else if (isBetween && action == SliderSingleStepSub)
        setSliderPosition(static_cast<int>(std::ceil(exact)) - 1);
    else if (isDown && exact > maximum())
        setSliderPosition(maximum());
    else if (isUp && exact < minimum())
        setSliderPosition(minimum());
    choose(sliderPosition() / tenth);
}

void StepSlider::choose(double number) {
    if (number == m_number)
        return;
    m_number = number;
    tellReaders();
    update();
    Q_EMIT chosen(number);
}

void StepSlider::tellReaders() {
    setAccessibleDescription(wording());
    QAccessibleValueChangeEvent event(this, m_number);
    QAccessible::updateAccessibility(&event);
}

QSize StepSlider::sizeHint() const {
    return {200, static_cast<int>(handleSize + 2 * focusRingRoom)};
}

QRectF StepSlider::groove() const {
    const double edge = focusRingRoom + handleSize / 2;
    return {edge, (height() - grooveHeight) / 2, width() - 2 * edge, grooveHeight};
}

double StepSlider::handleX() const {
    const double part = std::clamp((m_number * tenth - minimum()) / (maximum() - minimum()), 0.0, 1.0);
    const QRectF room = groove();
    return layoutDirection() == Qt::RightToLeft ? room.right() - part * room.width()
                                                : room.left() + part * room.width();
}

int StepSlider::tenthsAt(double x) const {
    const QRectF room = groove();
    const double part = (layoutDirection() == Qt::RightToLeft ? room.right() - x : x - room.left())
                        / std::max(1.0, room.width());
    return static_cast<int>(std::lround(minimum() + std::clamp(part, 0.0, 1.0) * (maximum() - minimum())));
}

/// The handle is taken where it is; a press beside it brings it there.
void StepSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const double distance = event->position().x() - handleX();
    const bool isOnHandle = std::abs(distance) <= handleSize / 2;
    m_grip = isOnHandle ? distance : 0;
    setSliderDown(true);
    if (!isOnHandle)
        setSliderPosition(tenthsAt(event->position().x()));
}

void StepSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        setSliderPosition(tenthsAt(event->position().x() - m_grip));
}

void StepSlider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

/// The page is scrolled, not what happens to lie under the pointer.
void StepSlider::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void StepSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = m_themes.theme().palette;
    const QRectF line = groove();
    const double x = handleX();
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.primaryAt(restOpacity));
    painter.drawRoundedRect(line, grooveHeight / 2, grooveHeight / 2);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    QRectF chosenPart = line;
    if (isMirrored)
        chosenPart.setLeft(x);
    else
        chosenPart.setRight(x);
    painter.setBrush(palette.accent);
    painter.drawRoundedRect(chosenPart, grooveHeight / 2, grooveHeight / 2);

    const QRectF handle(x - handleSize / 2, (height() - handleSize) / 2, handleSize, handleSize);
    if (hasFocus()) {
        painter.setPen(QPen(palette.focusRing, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(handle.adjusted(-2, -2, 2, 2));
    }
    painter.setPen(QPen(palette.primaryAt(handleEdgeOpacity), 1));
    painter.setBrush(isSliderDown() ? QColor(0xec, 0xea, 0xe8) : QColor(Qt::white));
    painter.drawEllipse(handle.adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace quillon
