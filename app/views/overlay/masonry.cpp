#include "masonry.h"

#include <algorithm>

namespace quillon::Masonry {

std::vector<std::vector<std::size_t>> deal(std::span<const std::size_t> weights, std::size_t columns) {
    std::vector<std::vector<std::size_t>> stacks(columns);
    if (columns == 0)
        return stacks;
    std::vector<std::size_t> heights(columns, 0);
    for (std::size_t group = 0; group < weights.size(); ++group) {
        const auto lowest = std::ranges::min_element(heights); // the first of equals
        stacks[static_cast<std::size_t>(lowest - heights.begin())].push_back(group);
        *lowest += weights[group];
    }
    return stacks;
}

} // namespace quillon::Masonry
