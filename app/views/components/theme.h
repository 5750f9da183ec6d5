#pragma once

#include "palette.h"
#include "text_styles.h"

#include <quillon/app/ports/appearance.h>
#include <quillon/kit/shortcut/key_names.h>

#include <memory>

namespace quillon {

/// How the program looks right now.
struct Theme {
    Palette palette;
    TextStyles styles;
    /// What keys are shown by; null for their symbols.
    std::shared_ptr<const KeyNames> keyNames = {};

    /// The size of key caps that stand in a line of body text, in logical pixels.
    double keySize() const;

    /// The size of a symbol that stands beside body text, in logical pixels.
    int symbolSize() const;

    /// Follows the desktop's look; where that does not tell a font, `fallback` is the interface font.
    static Theme fromLook(const Look& look, const QFont& fallback);

    bool operator==(const Theme&) const = default;
};

} // namespace quillon
