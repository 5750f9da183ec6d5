#include "figure_label.h"

#include "accessible_roles.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

double widestDigit(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

double advanceOf(QChar character, const QFontMetricsF& metrics) {
    return character.isDigit() ? widestDigit(metrics) : metrics.horizontalAdvance(character);
}

double widthOf(const QString& text, const QFontMetricsF& metrics) {
    double width = 0;
    for (const QChar character : text)
        width += advanceOf(character, metrics);
    return width;
}

} // namespace

FigureLabel::FigureLabel(ThemeSource& themeSource, int width, const QString& widest, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_width(width), m_widest(widest) {
    readAs(*this, ReadAs::decoration);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void FigureLabel::setText(const QString& text) {
    m_text = text;
    updateGeometry();
    update();
}

QSize FigureLabel::sizeHint() const {
    const QFontMetricsF metrics(theme().styles.body);
    const double needed = std::max(widthOf(m_widest, metrics), widthOf(m_text, metrics));
    return {
        std::max(m_width, static_cast<int>(std::ceil(needed))),
        static_cast<int>(std::ceil(metrics.height()))};
}

void FigureLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QFont font = theme().styles.body;
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(theme().palette.primary);
    double x = layoutDirection() == Qt::RightToLeft ? 0 : width() - widthOf(m_text, metrics);
    const double baseline = (height() - metrics.height()) / 2 + metrics.ascent();
    for (const QChar character : m_text) {
        const double room = advanceOf(character, metrics);
        painter.drawText(QPointF(x + (room - metrics.horizontalAdvance(character)) / 2, baseline), character);
        x += room;
    }
}

} // namespace quillon
