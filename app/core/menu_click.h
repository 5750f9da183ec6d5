#pragma once

#include <quillon/app/ports/geometry.h>
#include <quillon/kit/base/instant.h>

#include <cstddef>
#include <optional>

namespace quillon {

/// What is known of an item of a menu and of the pointer button that was let go over it. Times are measured
/// from the letting go: negative before it, absent for what has not happened. The defaults are those of a
/// plain click.
struct MenuClickFacts {
    std::optional<Rect> frame; ///< the item's; absent when not known
    Point releasedAt;
    std::optional<Seconds> left = std::nullopt; ///< when the item ceased to be pointed at; absent while it is
    std::optional<Seconds> closed = Seconds(0); ///< when all menus were noticed to be closed
    std::optional<Seconds> told = Seconds(0);   ///< when the application told of the item
    bool enabled = true;
    bool hasShortcut = true;
    std::size_t titles = 2; ///< from the top-level menu down to the item
};

/// Whether a button that was let go at `point` was let go over an item with this frame. A few pixels beside
/// it count too, for applications round; an empty frame has no such surroundings.
bool isOver(const std::optional<Rect>& frame, Point point);

/// Whether an item that ceased to be pointed at then may be the one that the button was let go over:
/// applications tell that an item is left on the release itself, and that can be noticed before it.
bool wasPointedAt(std::optional<Seconds> left);

/// Whether menus that were closed then may have been closed by the letting go: late by an application that is
/// busy, and a little early where the desktop is slower to tell of its buttons than of its windows.
bool mayHaveClosed(Seconds closed);

/// Whether a command was chosen by a click that its shortcut would have replaced. Choosing closes the menus:
/// what leaves them open (a title, a separator, a submenu) or closes them otherwise (a key, a click outside)
/// is none. An application that is busy may tell late, but not so late that nobody remembers the click.
bool isMenuClick(const MenuClickFacts& facts);

} // namespace quillon
