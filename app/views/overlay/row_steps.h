#pragma once

#include "area_layout.h"

#include <cstddef>

namespace quillon {

enum class RowStep { up, down, left, right, first, last, pageUp, pageDown };

/// The row that a step of the keyboard leads to from the row at position `from`; `from` itself where there is
/// none further. The last row is the lowest one. Up and down follow a column from card to card; left and
/// right go to the row beside. `page` is the height of what is visible. The layout has rows.
std::size_t rowAfterStep(const AreaLayout& layout, std::size_t from, RowStep step, double page);

} // namespace quillon
