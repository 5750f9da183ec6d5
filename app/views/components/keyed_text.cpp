#include "keyed_text.h"

#include "device_pixels.h"
#include "key_pictograms.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// The highest signs are somewhat higher than capitals: smaller ones would close up in small text.
constexpr double sizePerCapital = 1.3;
/// Before and behind a sign, in its size.
constexpr double gapPerSize = 0.08;
/// Stands where a sign will be, since it breaks lines and joins words as one.
constexpr QChar placeholder = u'x';

bool isArrow(QChar character) {
    return (character >= u'←' && character <= u'↓') || character == u'↖' || character == u'↘';
}

bool isSign(QChar character) {
    return !isArrow(character) && KeyPictograms::has(character);
}

constexpr QTextOption::WrapMode wrapped = QTextOption::WrapAtWordBoundaryOrAnywhere;
constexpr QChar ellipsis = u'…';

/// Without limits where lines are not to end.
constexpr double endless = 1e6;

} // namespace

bool KeyedText::isNeededFor(const QString& text) {
    return std::ranges::any_of(text, isSign);
}

KeyedText::KeyedText(const QString& text, const QFont& font) : m_whole(text), m_text(text), m_font(font) {
    const double letter = QFontMetricsF(font).horizontalAdvance(placeholder);
    for (int at = 0; at < text.size(); ++at) {
        if (!isSign(text[at]))
            continue;
        const QString sign = text[at];
        const double room = (KeyPictograms::widthPerSize(sign) + 2 * gapPerSize) * signSize();
        QFont spaced = font;
        spaced.setLetterSpacing(QFont::AbsoluteSpacing, room - letter);
        QTextCharFormat format;
        format.setFont(spaced);
        format.setForeground(QColor(Qt::transparent));
        m_text[at] = placeholder;
        m_formats.append({.start = at, .length = 1, .format = format});
        m_signs.push_back({at, sign});
    }
}

double KeyedText::signSize() const {
    return QFontMetricsF(m_font).capHeight() * sizePerCapital;
}

void KeyedText::layOut(QTextLayout& layout, double width, const QTextOption& option) const {
    layout.setTextOption(option);
    layout.setFormats(m_formats);
    layout.setCacheEnabled(true);
    double y = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, y});
        y += line.height();
    }
    layout.endLayout();
}

double KeyedText::width() const {
    QTextLayout layout(m_text, m_font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layOut(layout, endless, option);
    return layout.lineCount() > 0 ? layout.lineAt(0).naturalTextWidth() : 0;
}

double KeyedText::height(double width) const {
    QTextLayout layout(m_text, m_font);
    QTextOption option;
    option.setWrapMode(wrapped);
    layOut(layout, width, option);
    return layout.boundingRect().height();
}

qsizetype KeyedText::lengthOf(double width, int lines) const {
    QTextLayout layout(m_text, m_font);
    QTextOption option;
    option.setWrapMode(wrapped);
    layOut(layout, width, option);
    if (layout.lineCount() <= lines)
        return m_text.size();
    const QTextLine last = layout.lineAt(lines - 1);
    return last.textStart() + last.textLength();
}

QString KeyedText::shortened(double width, int lines) const {
    qsizetype length = lengthOf(width, lines);
    if (length == m_whole.size())
        return m_whole;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, m_whole);
    while (length > 0) {
        const QString some = m_whole.first(length).trimmed() + ellipsis;
        if (KeyedText(some, m_font).lengthOf(width, lines) == some.size())
            return some;
        letters.setPosition(length);
        length = letters.toPreviousBoundary();
    }
    return ellipsis;
}

void KeyedText::paintLine(QPainter& painter, const QRectF& box, Qt::Alignment alignment) const {
    paint(painter, box, alignment, QTextOption::NoWrap);
}

void KeyedText::paintWrapped(QPainter& painter, const QRectF& box, Qt::Alignment alignment) const {
    paint(painter, box, alignment, wrapped);
}

void KeyedText::paint(
    QPainter& painter, const QRectF& box, Qt::Alignment alignment, QTextOption::WrapMode wrap) const {
    QTextOption option((alignment & Qt::AlignHorizontal_Mask) | Qt::AlignAbsolute);
    option.setWrapMode(wrap);
    option.setTextDirection(m_text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    QTextLayout layout(m_text, m_font);
    layOut(layout, box.width(), option);
    const double spare = box.height() - layout.boundingRect().height();
    double top = box.top();
    if (alignment.testFlag(Qt::AlignVCenter))
        top += std::floor(spare / 2);
    else if (alignment.testFlag(Qt::AlignBottom))
        top += spare;
    const QPointF origin(box.left(), top);
    layout.draw(&painter, origin);
    for (const Sign& sign : m_signs)
        paintSign(painter, layout.lineForTextPosition(sign.at), origin, sign);
}

/// Around the middle of the capitals beside it, on whole device pixels.
void KeyedText::paintSign(QPainter& painter, const QTextLine& line, QPointF origin, const Sign& sign) const {
    const double ratio = painter.device()->devicePixelRatioF();
    const auto [size, path] = KeyPictograms::drawing(sign.sign, signSize() * ratio);
    const double left = std::min(line.cursorToX(sign.at), line.cursorToX(sign.at + 1));
    const double right = std::max(line.cursorToX(sign.at), line.cursorToX(sign.at + 1));
    const double baseline = std::round(line.y() + line.ascent());
    const QPointF centre((left + right) / 2, baseline - QFontMetricsF(m_font).capHeight() / 2);
    painter.save();
    painter.translate(
        onDevicePixel(painter, origin + centre - QPointF(size.width(), size.height()) / 2 / ratio));
    painter.scale(1 / ratio, 1 / ratio);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, painter.pen().color());
    painter.restore();
}

} // namespace quillon
