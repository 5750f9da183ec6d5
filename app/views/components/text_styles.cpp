#include "text_styles.h"

#include <QFontInfo>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Below this no hinting keeps letters apart.
constexpr double smallestPoints = 5;

QFont scaled(QFont font, double points, double factor) {
    font.setPointSizeF(std::max(smallestPoints, points * factor));
    return font;
}

} // namespace

TextStyles TextStyles::fromBase(const QFont& base) {
    QFont font = base;
    QStringList families = font.families();
    if (families.isEmpty())
        families = QStringList{QFontInfo(font).family()};
    if (!families.contains(u"DejaVu Sans"_s))
        families.append(u"DejaVu Sans"_s);
    font.setFamilies(families);
    const double points = QFontInfo(base).pointSizeF();

    return TextStyles{
        .largeTitle = scaled(font, points, 1.9),
        .title = scaled(font, points, 1.55),
        .title2 = scaled(font, points, 1.32),
        .headline = semibold(scaled(font, points, 1.0)),
        .body = scaled(font, points, 1.0),
        .callout = scaled(font, points, 0.93),
        .caption = scaled(font, points, 0.83),
    };
}

QFont bold(QFont font) {
    font.setWeight(QFont::Bold);
    return font;
}

QFont semibold(QFont font) {
    font.setWeight(QFont::DemiBold);
    return font;
}

QFont italic(QFont font) {
    font.setItalic(true);
    return font;
}

QFont atSize(QFont font, double pixels) {
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    return font;
}

double pixelSize(const QFont& font) {
    return QFontInfo(font).pixelSize();
}

} // namespace quillon
