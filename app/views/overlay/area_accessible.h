#pragma once

#include <cstddef>

namespace quillon {

class ShortcutArea;

/// Tells the toolkit how screen readers see a `ShortcutArea`: a list of headings and rows. More than once
/// does no harm.
void installAreaAccessible();

/// The area's elements are others than before.
void tellAreaReplaced(ShortcutArea& area);

/// The row at this position in the layout now has the keyboard.
void tellRowFocused(ShortcutArea& area, std::size_t row);

} // namespace quillon
