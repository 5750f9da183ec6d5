#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace quillon::Masonry {

/// The columns of the overlay, however many groups there are.
inline constexpr std::size_t overlayColumns = 3;

/// What a group counts: its rows, and two for its title and the space around it.
constexpr std::size_t weight(std::size_t rows) {
    return rows + 2;
}

/// Deals groups, given by their weights, into `columns` stacks: each in turn onto the stack that is lowest so
/// far, the leftmost of equals. Returns the positions of the groups per stack, top first. No columns, no
/// stacks.
std::vector<std::vector<std::size_t>> deal(std::span<const std::size_t> weights, std::size_t columns);

} // namespace quillon::Masonry
