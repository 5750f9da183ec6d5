#include "themed_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <utility>

namespace quillon {

ThemedLabel::ThemedLabel(ThemeSource& themes, FontChoice font, QColor Palette::*colour, QWidget* parent)
    : QLabel(parent), m_themes(themes), m_font(std::move(font)), m_colour(colour) {
    setTextFormat(Qt::PlainText);
    m_subscription = themes.changed.subscribe([this] { follow(); });
    follow();
}

void ThemedLabel::follow() {
    const Theme& theme = m_themes.theme();
    setFont(m_font(theme.styles));
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, theme.palette.*m_colour);
    setPalette(colours);
}

bool ThemedLabel::isElided() const {
    return !wordWrap() && fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

QSize ThemedLabel::minimumSizeHint() const {
    if (wordWrap())
        return QLabel::minimumSizeHint();
    const QSize whole = sizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * 8), whole.height()};
}

void ThemedLabel::paintEvent(QPaintEvent* event) {
    if (!isElided()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect rect = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, rect.width());
    painter.drawText(rect, static_cast<int>(alignment()) | Qt::TextSingleLine, shown);
}

bool ThemedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    if (isElided())
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace quillon
