#include "colours.h"

#include <algorithm>
#include <cmath>

namespace quillon::Colours {

namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

} // namespace

QColor withOpacity(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(colour.alphaF() * opacity));
    return colour;
}

QColor over(const QColor& top, const QColor& bottom) {
    const float alpha = top.alphaF();
    const auto mix = [alpha](float above, float below) { return above * alpha + below * (1 - alpha); };
    return QColor::fromRgbF(
        mix(top.redF(), bottom.redF()), mix(top.greenF(), bottom.greenF()), mix(top.blueF(), bottom.blueF()));
}

double contrast(const QColor& foreground, const QColor& background) {
    const double a = luminance(over(foreground, background));
    const double b = luminance(background);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QString css(const QColor& colour) {
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(colour.red())
        .arg(colour.green())
        .arg(colour.blue())
        .arg(colour.alpha());
}

} // namespace quillon::Colours
