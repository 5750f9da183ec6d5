#include "destructive_button.h"

namespace quillon {

namespace {

constexpr double edgeOpacity = 0.16;

} // namespace

QColor DestructiveButton::textColour(ColourScheme scheme) {
    return scheme == ColourScheme::dark ? QColor(0xff, 0x94, 0x87) : QColor(0xb3, 0x1f, 0x17);
}

ThemedButton::Colours DestructiveButton::colours(const Palette& palette) const {
    return {
        .fill = palette.card, .border = palette.primaryAt(edgeOpacity), .text = textColour(palette.scheme)};
}

QFont DestructiveButton::labelFont(const TextStyles& styles) const {
    return styles.body;
}

} // namespace quillon
