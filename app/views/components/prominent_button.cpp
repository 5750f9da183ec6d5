#include "prominent_button.h"

namespace quillon {

ThemedButton::Colours ProminentButton::colours(const Palette& palette) const {
    return {.fill = palette.accent, .border = Qt::transparent, .text = palette.onAccent};
}

QFont ProminentButton::labelFont(const TextStyles& styles) const {
    return styles.headline;
}

} // namespace quillon
