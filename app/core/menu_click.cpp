#include "menu_click.h"

namespace quillon {

namespace {

/// In logical pixels, on every side.
constexpr double surroundings = 2;
/// How much earlier than the release its effects may be noticed.
constexpr Seconds earliestLeft{-0.3};
constexpr Seconds earliestClosed{-0.1};
/// How much later.
constexpr Seconds patience{1.0};

} // namespace

bool isOver(const std::optional<Rect>& frame, Point point) {
    if (!frame || !(frame->width > 0 && frame->height > 0))
        return false;
    const Rect grown{
        frame->x - surroundings, frame->y - surroundings, frame->width + 2 * surroundings,
        frame->height + 2 * surroundings};
    return grown.contains(point);
}

bool wasPointedAt(std::optional<Seconds> left) {
    return !left || *left >= earliestLeft;
}

bool mayHaveClosed(Seconds closed) {
    return closed >= earliestClosed && closed <= patience;
}

bool isMenuClick(const MenuClickFacts& facts) {
    const bool closedInTime = facts.closed && mayHaveClosed(*facts.closed);
    const bool toldInTime = facts.told && *facts.told <= patience;
    const bool hasMenu = facts.titles >= 2;
    return closedInTime && toldInTime && hasMenu && facts.hasShortcut && facts.enabled
           && wasPointedAt(facts.left) && isOver(facts.frame, facts.releasedAt);
}

} // namespace quillon
