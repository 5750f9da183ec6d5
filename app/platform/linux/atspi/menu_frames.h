#pragma once

#include "object_ref.h"

#include <quillon/app/ports/geometry.h>

#include <optional>

/// Where things in an open menu are in the pixels of the display. Toolkits tell places in pixels of their
/// own: GTK's are all of one size, Qt keeps the place where each screen begins and divides what is on it. So
/// the only thing to measure by is the menu's window, which the display knows in its pixels.
namespace quillon::atspi {

/// How a toolkit tells places within one window.
struct PixelMap {
    double scale = 1;  ///< pixels of the display for one of the toolkit's
    Point ofToolkit{}; ///< one place, as the toolkit tells it
    Point ofDisplay{}; ///< the same place

    Rect onDisplay(const Extents& extents) const;
    Point inToolkit(Point place) const;
};

/// The map that makes a menu's extents its window's; absent when no scaling does, or the menu is not scaled
/// and elsewhere, so that the window is another menu's.
std::optional<PixelMap> mapBetween(const Extents& menu, const Rect& window);

/// The frame of an item of a GTK menu in this window. An item spans its menu but for narrow edges, and GTK
/// scales by whole numbers, everything from the screen's corner. Absent when no such scale puts the item into
/// the window and below `at`: it is another menu's, or the menu has closed.
std::optional<Rect> gtkItemFrame(const Extents& item, const Rect& window, Point at);

} // namespace quillon::atspi
