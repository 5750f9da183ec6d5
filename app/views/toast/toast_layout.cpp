#include "toast_layout.h"

#include "toast_texts.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr int padding = 18;
constexpr int spacing = 14;
/// From the line that the caption stands on down to the keys.
constexpr int captionGap = 8;
constexpr int titleGap = 10;
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

/// Caption and keys are in the middle of the height by what is seen of them.
ToastLayout ToastLayout::of(const ToastMeasures& measures, Qt::LayoutDirection direction) {
    ToastLayout layout;
    layout.symbol = {padding, (size.height() - symbolSize) / 2, symbolSize, symbolSize};

    const int x = padding + symbolSize + spacing;
    const double capitals = QFontMetricsF(measures.fonts.caption).capHeight();
    const double seen = capitals + captionGap + measures.keys.height();
    const int captionLine = static_cast<int>(std::lround((size.height() - seen) / 2 + capitals));
    layout.caption = onLine(measures.fonts.caption, ToastTexts::caption(), x, captionLine);

    layout.keys = {QPoint(x, captionLine + captionGap), measures.keys};
    const int titleX = x + measures.keys.width() + titleGap;
    const int titleRoom = std::max(0, size.width() - padding - titleX);
    layout.shownTitle =
        QFontMetricsF(measures.fonts.title).elidedText(measures.title, Qt::ElideRight, titleRoom);
    layout.title =
        onLine(measures.fonts.title, layout.shownTitle, titleX, layout.keys.y() + measures.keysLine);

    if (direction == Qt::RightToLeft)
        mirror(layout);
    return layout;
}

} // namespace quillon
