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

/// `text` in at most `mostLines` lines, the first of at most `firstWidth`, the others of at most `width`;
/// what is left over is in the last one.
QStringList wrapped(const QString& text, const QFont& font, double firstWidth, double width, int mostLines) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(lines.isEmpty() ? firstWidth : width);
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

void RowFlow::newLine(double ascent, double height, double reserved) {
    const double top = m_line.bottom + lineGap;
    m_line = {.right = m_width - reserved, .baseline = top + ascent, .bottom = top + height};
    m_x = 0;
}

PlacedText RowFlow::placeText(const QString& text, const MeasuredFont& font, double padding) {
    const double wanted = font.width(text) + 2 * padding;
    if (!fits(std::min(wanted, m_width)))
        newLine(ascentOf(font), font.lineHeight());
    const double width = std::min(wanted, m_line.right - start());
    const QString shown = wanted > width ? elided(text, font, width - 2 * padding) : text;
    const double top = m_line.baseline - ascentOf(font);
    return {shown, QRectF(take(width), top, width, font.lineHeight()), m_line.baseline, wanted > width};
}

std::vector<PlacedText>
RowFlow::placeParagraph(const QString& text, const MeasuredFont& font, int mostLines, double reserved) {
    const double firstWidth = std::max(1.0, m_line.right - start() - reserved);
    if (font.width(text) <= firstWidth)
        return {placeText(text, font)};
    const double width = std::max(1.0, m_width - reserved);
    std::vector<PlacedText> placed;
    for (const QString& line : wrapped(text, font.font(), firstWidth, width, mostLines)) {
        if (!placed.empty())
            newLine(ascentOf(font), font.lineHeight());
        const double room = placed.empty() ? firstWidth : width;
        const double wanted = font.width(line);
        const QString shown = wanted > room ? elided(line, font, room) : line;
        const double left = take(std::min(wanted, room));
        const QRectF rect(left, m_line.baseline - ascentOf(font), std::min(wanted, room), font.lineHeight());
        placed.push_back({shown, rect, m_line.baseline, wanted > room});
    }
    return placed;
}

} // namespace quillon
