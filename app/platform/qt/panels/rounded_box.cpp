#include "rounded_box.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// How many pixels of a row are cut off at each end; `row` counts from the nearer edge.
int cutAt(int row, double radius) {
    const double up = std::max(0.0, radius - (row + 0.5));
    const double across = std::sqrt(std::max(0.0, radius * radius - up * up));
    return std::max(0, static_cast<int>(std::ceil(radius - across - 0.5)));
}

} // namespace

std::vector<PixelBox> roundedBoxes(const PixelBox& box, double radius) {
    const double fitting = std::clamp(radius, 0.0, std::min(box.width, box.height) / 2.0);
    std::vector<PixelBox> result;
    for (int row = 0; row < box.height; ++row) {
        const int cut = cutAt(std::min(row, box.height - 1 - row), fitting);
        const PixelBox line{box.x + cut, box.y + row, box.width - 2 * cut, 1};
        if (!result.empty() && result.back().x == line.x)
            ++result.back().height;
        else
            result.push_back(line);
    }
    return result;
}

} // namespace quillon
