#include "theme.h"

#include "text.h"

#include <algorithm>
#include <cmath>

namespace quillon {

double Theme::keySize() const {
    return std::max(6.0, std::round(pixelSize(styles.body)));
}

int Theme::symbolSize() const {
    return std::max(8, static_cast<int>(std::lround(pixelSize(styles.body) * 1.05)));
}

Theme Theme::fromLook(const Look& look, const QFont& fallback) {
    QFont base = fallback;
    if (look.fontFamily && !look.fontFamily->empty())
        base.setFamilies({text(*look.fontFamily)});
    if (look.fontPoints && *look.fontPoints > 0)
        base.setPointSizeF(std::clamp(*look.fontPoints, 4.0, 72.0));
    return Theme{.palette = Palette::forScheme(look.scheme), .styles = TextStyles::fromBase(base)};
}

} // namespace quillon
