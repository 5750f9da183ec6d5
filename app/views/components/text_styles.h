#pragma once

#include <QFont>

namespace quillon {

/// The fonts of the text styles, all scaled from the interface font.
struct TextStyles {
    QFont largeTitle;
    QFont title;
    QFont title2;
    QFont headline;
    QFont body;
    QFont callout;
    QFont caption;

    /// `base` is the interface font at its own size, which becomes `body`. Key glyphs that its family lacks
    /// come from DejaVu Sans.
    static TextStyles fromBase(const QFont& base);

    bool operator==(const TextStyles&) const = default;
};

QFont bold(QFont font);
QFont semibold(QFont font);
QFont italic(QFont font);
/// The font at a size in logical pixels, as components scale that are measured in points.
QFont atSize(QFont font, double pixels);

/// The size of the font in logical pixels.
double pixelSize(const QFont& font);

} // namespace quillon
