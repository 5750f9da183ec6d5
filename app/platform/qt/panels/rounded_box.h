#pragma once

#include "panel_windows.h"

#include <vector>

namespace quillon {

/// `box` without what lies beyond its corners when these are rounded with `radius`: every pixel whose middle
/// is inside. Boxes that do not overlap, from top to bottom.
std::vector<PixelBox> roundedBoxes(const PixelBox& box, double radius);

} // namespace quillon
