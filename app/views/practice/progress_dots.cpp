#include "progress_dots.h"

#include <quillon/app/views/components/accessible_roles.h>

#include <QPainter>

namespace quillon {

namespace {

constexpr int dotSize = 8;
constexpr int step = 16;
constexpr double lineWidth = 1.5;

} // namespace

ProgressDots::ProgressDots(ThemeSource& themeSource, QWidget* parent) : ThemedWidget(themeSource, parent) {
    readAs(*this, ReadAs::decoration);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ProgressDots::show(const PracticeRound& round) {
    m_dots.assign(round.length(), Dot::toCome);
    if (round.index() < m_dots.size())
        m_dots[round.index()] = Dot::present;
    for (std::size_t i = 0; i < round.results().size(); ++i)
        m_dots[i] = round.results()[i].correct ? Dot::right : Dot::missed;
    updateGeometry();
    update();
}

QSize ProgressDots::sizeHint() const {
    return {static_cast<int>(m_dots.size()) * step, dotSize + 4};
}

void ProgressDots::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = theme().palette;
    QPointF centre(step / 2.0, height() / 2.0);
    for (const Dot dot : m_dots) {
        const double radius = dotSize / 2.0;
        painter.setBrush(Qt::NoBrush);
        switch (dot) {
        case Dot::toCome:
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette.primaryAt(0.25));
            painter.drawEllipse(centre, radius / 2, radius / 2);
            break;
        case Dot::present:
            painter.setPen(QPen(palette.focusRing, lineWidth));
            painter.drawEllipse(centre, radius, radius);
            break;
        case Dot::right:
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette.accent);
            painter.drawEllipse(centre, radius, radius);
            break;
        case Dot::missed: {
            const double arm = radius * 0.75;
            painter.setPen(QPen(palette.secondary, lineWidth, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(centre + QPointF(-arm, -arm), centre + QPointF(arm, arm));
            painter.drawLine(centre + QPointF(-arm, arm), centre + QPointF(arm, -arm));
            break;
        }
        }
        centre.rx() += step;
    }
}

} // namespace quillon
