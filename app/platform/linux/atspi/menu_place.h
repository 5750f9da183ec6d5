#pragma once

#include <quillon/app/ports/geometry.h>

#include <cstddef>
#include <cstdint>

namespace quillon::atspi {

/// A place in the window of an open menu, in the pixels of the display.
struct MenuPlace {
    std::uint64_t opening = 0; ///< tells this opening of a menu from every other
    std::size_t level = 0;     ///< how many menus were open before it
    Rect window;
    Point at;
    Point openedFrom{}; ///< where the pointer was when the window came to the screen: mostly on its title
};

} // namespace quillon::atspi
