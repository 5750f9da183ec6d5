#include "menu_bar_choice.h"

#include <algorithm>

namespace quillon::atspi {

MenuBarClaim claimOf(const MenuBarFacts& facts) {
    if (!facts.isShowing)
        return MenuBarClaim::putAway;
    return facts.hasRoom.value_or(true) ? MenuBarClaim::seen : MenuBarClaim::imagined;
}

std::optional<std::size_t> chosenMenuBar(std::span<const MenuBarFacts> bars) {
    const auto best = std::ranges::min_element(bars, {}, claimOf);
    return best == bars.end() ? std::nullopt : std::optional(static_cast<std::size_t>(best - bars.begin()));
}

} // namespace quillon::atspi
