#pragma once

#include <quillon/app/ports/printed_keys.h>

#include <QRectF>
#include <QSizeF>

#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

/// Where a key is on a keyboard, in widths of a letter's key.
struct PlannedKey {
    QRectF place;
    std::optional<std::int64_t> code; ///< its key code; absent for one that no shortcut has
    /// The rest of a key that is no rectangle: what a tall Return has below.
    std::optional<QRectF> more = {};
};

/// The keyboard of a PC without its number pad, in one of its two shapes.
std::vector<PlannedKey> keyboardPlan(KeyboardShape shape);

/// How large such a keyboard is.
inline constexpr QSizeF keyboardSize(18.25, 6.25);

} // namespace quillon
