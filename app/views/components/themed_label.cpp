#include "themed_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <utility>

namespace quillon {

ThemedLabel::ThemedLabel(ThemeSource& themes, FontChoice font, QColor Palette::*colour, QWidget* parent)
    : QLabel(parent), m_themes(themes), m_font(std::move(font)), m_colour(colour) {
    setTextFormat(Qt::PlainText);
    m_subscription = themes.changed.subscribe([this] { themeChanged(); });
    themeChanged();
}

void ThemedLabel::themeChanged() {
    const Theme& theme = m_themes.theme();
    setFont(m_font(theme.styles));
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, theme.palette.*m_colour);
    setPalette(colours);
}

bool ThemedLabel::isElided() const {
    return !wordWrap() && fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void ThemedLabel::setShortenedPart(TextPart part) {
    m_shortenedPart = part;
    update();
}

QString ThemedLabel::shownText() const {
    if (!isElided())
        return text();
    const QFontMetrics metrics = fontMetrics();
    const int room = contentsRect().width();
    const auto [start, length] = m_shortenedPart;
    const QString before = text().left(start);
    const QString after = text().mid(start + length);
    const int partRoom = room - metrics.horizontalAdvance(before + after);
    if (length == 0 || partRoom <= 0)
        return metrics.elidedText(text(), Qt::ElideRight, room);
    return before + metrics.elidedText(text().mid(start, length), Qt::ElideRight, partRoom) + after;
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
    const int direction = text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    painter.drawText(
        contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine | direction, shownText());
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
