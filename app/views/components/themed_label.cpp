#include "themed_label.h"

#include "keyed_text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

/// In letters.
constexpr int shortestLineLength = 8;
constexpr int usualLineLength = 40;
/// Only markup is wrapped in tooltips, and only in markup is what is escaped read.
constexpr QLatin1StringView wrappedTip("<qt>%1</qt>");

} // namespace

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

int ThemedLabel::extraWidth() const {
    if (!KeyedText::isNeededFor(text()))
        return 0;
    const double extra = KeyedText(text(), font()).width() - QFontMetricsF(font()).horizontalAdvance(text());
    return static_cast<int>(std::ceil(extra));
}

bool ThemedLabel::isElided() const {
    if (m_mostLines > 0)
        return shownText() != text();
    return !wordWrap() && fontMetrics().horizontalAdvance(text()) + extraWidth() > contentsRect().width();
}

void ThemedLabel::setShortenedPart(TextPart part) {
    m_shortenedPart = part;
    update();
}

void ThemedLabel::setMostLines(int lines) {
    m_mostLines = lines;
    setWordWrap(true);
    updateGeometry();
    update();
}

/// On as many lines as there may be, of this width with the margins.
QString ThemedLabel::shortenedTo(int width) const {
    const QMargins margins = contentsMargins();
    return KeyedText(text(), font()).shortened(width - margins.left() - margins.right(), m_mostLines);
}

QString ThemedLabel::shownText() const {
    if (m_mostLines > 0)
        return shortenedTo(width());
    if (!isElided())
        return text();
    const QFontMetrics metrics = fontMetrics();
    const int room = contentsRect().width() - std::max(0, extraWidth());
    const auto [start, length] = m_shortenedPart;
    const QString before = text().left(start);
    const QString after = text().mid(start + length);
    const int partRoom = room - metrics.horizontalAdvance(before + after);
    if (length == 0 || partRoom <= 0)
        return metrics.elidedText(text(), Qt::ElideRight, room);
    return before + metrics.elidedText(text().mid(start, length), Qt::ElideRight, partRoom) + after;
}

QSize ThemedLabel::sizeHint() const {
    const QSize whole = QLabel::sizeHint();
    if (m_mostLines > 0) {
        const int width = std::min(whole.width(), fontMetrics().averageCharWidth() * usualLineLength);
        return {width, heightForWidth(width)};
    }
    if (!KeyedText::isNeededFor(text()))
        return whole;
    if (wordWrap())
        return {whole.width(), heightForWidth(whole.width())};
    return {whole.width() + extraWidth(), whole.height()};
}

int ThemedLabel::heightForWidth(int width) const {
    if (!wordWrap() || (m_mostLines == 0 && !KeyedText::isNeededFor(text())))
        return QLabel::heightForWidth(width);
    const QMargins margins = contentsMargins();
    const QString shown = m_mostLines > 0 ? shortenedTo(width) : text();
    const double height = KeyedText(shown, font()).height(width - margins.left() - margins.right());
    return static_cast<int>(std::ceil(height)) + margins.top() + margins.bottom();
}

QSize ThemedLabel::minimumSizeHint() const {
    if (wordWrap() && m_mostLines == 0)
        return QLabel::minimumSizeHint();
    const QSize whole = sizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * shortestLineLength), whole.height()};
}

void ThemedLabel::paintEvent(QPaintEvent* event) {
    const bool isKeyed = m_mostLines > 0 || KeyedText::isNeededFor(text());
    if (!isElided() && !isKeyed) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    if (isKeyed) {
        const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), alignment());
        const KeyedText shown(shownText(), font());
        if (wordWrap())
            shown.paintWrapped(painter, contentsRect(), place);
        else
            shown.paintLine(painter, contentsRect(), place);
        return;
    }
    const int direction = text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    painter.drawText(
        contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine | direction, shownText());
}

bool ThemedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    if (isElided())
        QToolTip::showText(
            static_cast<QHelpEvent*>(event)->globalPos(), wrappedTip.arg(text().toHtmlEscaped()), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace quillon
