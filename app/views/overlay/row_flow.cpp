#include "row_flow.h"

#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// Between the lines of a row.
constexpr double lineGap = 2;

double ascentOf(const MeasuredFont& font) {
    return std::ceil(font.metrics().ascent());
}

QString elided(const QString& text, const MeasuredFont& font, double width) {
    return font.metrics().elidedText(text, Qt::ElideRight, width);
}

/// `text` in at most `mostLines` lines of at most `width`; what is left over is in the last one.
QStringList wrapped(const QString& text, const QFont& font, double width, int mostLines) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const bool isLast = lines.size() + 1 == mostLines;
        lines.append(text.mid(line.textStart(), isLast ? -1 : line.textLength()).trimmed());
        if (isLast)
            break;
    }
    layout.endLayout();
    return lines;
}

} // namespace

double RowFlow::take(double width) {
    const double left = start();
    m_x = left + width;
    return left;
}

void RowFlow::newLine(double ascent, double height) {
    const double top = m_line.bottom + lineGap;
    m_line = {.right = m_width, .baseline = top + ascent, .bottom = top + height};
    m_x = 0;
}

PlacedText RowFlow::placeText(const QString& text, const MeasuredFont& font, double padding) {
    const double wanted = font.width(text) + 2 * padding;
    const double width = std::min(wanted, m_width);
    if (!fits(width))
        newLine(ascentOf(font), font.lineHeight());
    const QString shown = wanted > width ? elided(text, font, width - 2 * padding) : text;
    const double top = m_line.baseline - ascentOf(font);
    return {shown, QRectF(take(width), top, width, font.lineHeight()), m_line.baseline, wanted > width};
}

std::vector<PlacedText>
RowFlow::placeParagraph(const QString& text, const MeasuredFont& font, int mostLines) {
    if (fits(font.width(text)))
        return {placeText(text, font)};
    std::vector<PlacedText> lines;
    for (const QString& line : wrapped(text, font.font(), m_width, mostLines)) {
        newLine(ascentOf(font), font.lineHeight());
        lines.push_back(placeText(line, font));
    }
    return lines;
}

} // namespace quillon
