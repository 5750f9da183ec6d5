#include "plain_button.h"

namespace quillon {

namespace {

constexpr double edgeOpacity = 0.16;

} // namespace

ThemedButton::Colours PlainButton::colours(const Palette& palette) const {
    return {.fill = palette.card, .border = palette.primaryAt(edgeOpacity), .text = palette.primary};
}

QFont PlainButton::labelFont(const TextStyles& styles) const {
    return styles.body;
}

} // namespace quillon
