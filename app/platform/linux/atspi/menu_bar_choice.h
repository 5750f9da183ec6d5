#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace quillon::atspi {

/// What one of a window's menu bars tells of itself.
struct MenuBarFacts {
    bool isShowing = false;
    /// Whether it takes any room on the screen; absent when it does not tell.
    std::optional<bool> hasRoom;
};

/// What is to be made of a menu bar, the best first.
enum class MenuBarClaim {
    seen,     ///< it shows: the one that its user knows
    putAway,  ///< it says itself that it does not show: hidden by the user, in a full screen
    imagined, ///< it says that it shows and takes no room: a toolkit's own beside the one that is drawn for
              ///< it
};

MenuBarClaim claimOf(const MenuBarFacts& facts);

/// Which of a window's menu bars is its own: the one with the best claim; of equal ones the nearest to the
/// window, because one further inside belongs to something that the window shows (a form in a designer).
/// `bars` are in the order in which they are found, the nearest first. Absent when there are none.
std::optional<std::size_t> chosenMenuBar(std::span<const MenuBarFacts> bars);

} // namespace quillon::atspi
