#include "destructive_button.h"

namespace quillon {

namespace {

constexpr double edgeOpacity = 0.16;

} // namespace

ThemedButton::Colours DestructiveButton::colours(const Palette& palette) const {
    return {.fill = palette.card, .border = palette.primaryAt(edgeOpacity), .text = palette.destructive};
}

QFont DestructiveButton::labelFont(const TextStyles& styles) const {
    return styles.body;
}

} // namespace quillon
