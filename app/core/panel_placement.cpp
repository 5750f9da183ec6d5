#include "panel_placement.h"

#include <algorithm>

namespace quillon::PanelPlacement {

namespace {

constexpr double toastWidth = 360;
constexpr double toastHeight = 92;
constexpr double toastGapToPointer = 28;
constexpr double toastMargin = 12;

constexpr Rect noScreen{0, 0, 1440, 900};

/// The area that both cover.
double overlap(Rect a, Rect b) {
    const double width = std::min(a.right(), b.right()) - std::max(a.x, b.x);
    const double height = std::min(a.bottom(), b.bottom()) - std::max(a.y, b.y);
    return std::max(0.0, width) * std::max(0.0, height);
}

// The lower bound wins where the room is too small for both.
double clamped(double value, double low, double high) {
    return std::max(low, std::min(value, high));
}

} // namespace

Rect visibleFrame(std::span<const Screen> screens, Point pointer) {
    const auto under = std::ranges::find_if(
        screens, [pointer](const Screen& screen) { return screen.frame.contains(pointer); });
    if (under != screens.end())
        return under->visibleFrame;
    if (!screens.empty())
        return screens.front().visibleFrame;
    return noScreen;
}

Rect visibleFrameAround(std::span<const Screen> screens, Rect frame) {
    const auto shows = [frame](const Screen& screen) { return overlap(screen.frame, frame); };
    const auto most = std::ranges::max_element(screens, {}, shows);
    return most == screens.end() ? noScreen : most->visibleFrame;
}

Rect overlayFrame(Rect visible) {
    const double width = std::min(visible.width * 0.86, 1180.0);
    const double height = std::min(visible.height * 0.8, 760.0);
    return {
        visible.x + (visible.width - width) / 2, visible.y + (visible.height - height) / 2, width, height};
}

Rect toastFrame(Rect visible, Point pointer) {
    const double x = clamped(
        pointer.x - toastWidth / 2, visible.x + toastMargin, visible.right() - toastWidth - toastMargin);
    const double y = clamped(
        pointer.y + toastGapToPointer, visible.y + toastMargin, visible.bottom() - toastHeight - toastMargin);
    return {x, y, toastWidth, toastHeight};
}

} // namespace quillon::PanelPlacement
