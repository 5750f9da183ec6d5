#include "menu_frames.h"

#include <cmath>

namespace quillon::atspi {
namespace {

/// What rounding of logical pixels may amount to, in pixels of the display.
constexpr double roundingOf(double scale) {
    return 1 + scale;
}
constexpr double smallestScale = 0.5;
constexpr double largestScale = 8;
/// How much of the menu's width an item takes at least.
constexpr double narrowestItem = 0.75;
/// How far what is not scaled may be from its place, in pixels.
constexpr double misplaced = 1;

bool isWithin(const Rect& inner, const Rect& outer, double tolerance) {
    return inner.x >= outer.x - tolerance && inner.y >= outer.y - tolerance
           && inner.right() <= outer.right() + tolerance && inner.bottom() <= outer.bottom() + tolerance;
}

} // namespace

Rect PixelMap::onDisplay(const Extents& extents) const {
    return {
        ofDisplay.x + (extents.x - ofToolkit.x) * scale, ofDisplay.y + (extents.y - ofToolkit.y) * scale,
        extents.width * scale, extents.height * scale};
}

Point PixelMap::inToolkit(Point place) const {
    return {ofToolkit.x + (place.x - ofDisplay.x) / scale, ofToolkit.y + (place.y - ofDisplay.y) / scale};
}

std::optional<PixelMap> mapBetween(const Extents& menu, const Rect& window) {
    if (menu.width <= 0 || menu.height <= 0)
        return std::nullopt;
    const double scale = window.width / menu.width;
    const bool isSane = scale >= smallestScale && scale <= largestScale;
    if (!isSane || std::abs(menu.height * scale - window.height) > roundingOf(scale))
        return std::nullopt;
    const bool isElsewhere =
        std::abs(menu.x - window.x) > misplaced || std::abs(menu.y - window.y) > misplaced;
    if (scale == 1 && isElsewhere)
        return std::nullopt;
    return PixelMap{scale, {static_cast<double>(menu.x), static_cast<double>(menu.y)}, {window.x, window.y}};
}

std::optional<Rect> gtkItemFrame(const Extents& item, const Rect& window, Point at) {
    if (item.width <= 0 || item.height <= 0)
        return std::nullopt;
    const double scale = std::floor(window.width / item.width);
    if (scale < 1 || scale > largestScale || item.width * scale < narrowestItem * window.width)
        return std::nullopt;
    const Rect frame = PixelMap{scale, {}, {}}.onDisplay(item);
    if (!isWithin(frame, window, 1) || !frame.contains(at))
        return std::nullopt;
    return frame;
}

} // namespace quillon::atspi
