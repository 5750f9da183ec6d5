#include "toast_layout.h"

#include "toast_texts.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr int padding = 18;
constexpr int verticalPadding = 14;
constexpr int spacing = 14;
/// From the line that the caption stands on down to the keys.
constexpr int captionGap = 8;
constexpr int titleGap = 10;
/// Where the title stands below the keys everything is closer together: this far apart where there is room.
constexpr int widestCloseGap = 7;
/// The title keeps at least this part of the room beside names; else it moves below them.
constexpr double titleShare = 0.4;
/// The largest text with which the widest keys leave a title some room.
constexpr double largestText = 16;
constexpr double largestCaption = 14;
/// The keys are what the toast is about: a little larger than beside other text.
constexpr double keysPerText = 1.15;

QFont noLarger(const QFont& font, double pixels) {
    return pixelSize(font) > pixels ? atSize(font, pixels) : font;
}

/// The box of a text that stands on this line.
QRectF onLine(const QFont& font, const QString& text, double x, double line) {
    const QFontMetricsF metrics(font);
    return {x, line - metrics.ascent(), metrics.horizontalAdvance(text), metrics.ascent()};
}

/// Between three lines that together have this height, the first of which is a text.
int closeGap(double lines, const QFontMetricsF& first) {
    const double aboveCapitals = first.ascent() - first.capHeight();
    const double free = ToastLayout::size.height() - 2 * (verticalPadding + aboveCapitals) - lines;
    return std::clamp(static_cast<int>(std::floor(free / 2)), 1, widestCloseGap);
}

void mirror(ToastLayout& layout) {
    for (QRect* box : {&layout.symbol, &layout.keys})
        box->moveLeft(ToastLayout::size.width() - box->x() - box->width());
    for (QRectF* box : {&layout.caption, &layout.title})
        box->moveLeft(ToastLayout::size.width() - box->right());
}

} // namespace

ToastFonts ToastFonts::of(const Theme& theme) {
    ToastFonts fonts{
        .caption = semibold(noLarger(theme.styles.caption, largestCaption)),
        .title = noLarger(theme.styles.headline, largestText),
        .keys = std::round(std::min(theme.keySize(), largestText) * keysPerText)};
    fonts.caption.setCapitalization(QFont::AllUppercase);
    return fonts;
}

int ToastLayout::room() {
    return size.width() - 2 * padding - symbolSize - spacing;
}

/// What is below each other is in the middle of the height by what is seen of it.
ToastLayout ToastLayout::of(const ToastMeasures& measures, Qt::LayoutDirection direction) {
    ToastLayout layout;
    layout.symbol = {padding, (size.height() - symbolSize) / 2, symbolSize, symbolSize};

    const int x = padding + symbolSize + spacing;
    const QFontMetricsF caption(measures.fonts.caption);
    const QFontMetricsF title(measures.fonts.title);
    const int besideKeys = std::max(0, room() - measures.keys.width() - titleGap);
    const bool isBelow = measures.isNamed && besideKeys < titleShare * room()
                         && title.horizontalAdvance(measures.title) > besideKeys;
    const double lines = caption.capHeight() + measures.keys.height() + (isBelow ? title.capHeight() : 0);
    const int gap = isBelow ? closeGap(lines, caption) : captionGap;
    const double seen = lines + gap + (isBelow ? gap : 0);
    const int captionLine = static_cast<int>(std::lround((size.height() - seen) / 2 + caption.capHeight()));
    layout.caption = onLine(measures.fonts.caption, ToastTexts::caption(), x, captionLine);

    layout.keys = {QPoint(x, captionLine + gap), measures.keys};
    layout.shownTitle = title.elidedText(measures.title, Qt::ElideRight, isBelow ? room() : besideKeys);
    const int titleX = isBelow ? x : x + measures.keys.width() + titleGap;
    const double line = isBelow
                            ? std::round(layout.keys.y() + measures.keys.height() + gap + title.capHeight())
                            : layout.keys.y() + measures.keysLine;
    layout.title = onLine(measures.fonts.title, layout.shownTitle, titleX, line);

    if (direction == Qt::RightToLeft)
        mirror(layout);
    return layout;
}

} // namespace quillon
