#pragma once

namespace quillon {

/// A place on the desktop in logical pixels; y grows downwards.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// The half-open area from (x, y) to (x + width, y + height), in logical pixels; y grows downwards.
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    constexpr double right() const { return x + width; }
    constexpr double bottom() const { return y + height; }
    constexpr bool contains(Point point) const {
        return point.x >= x && point.x < right() && point.y >= y && point.y < bottom();
    }

    bool operator==(const Rect&) const = default;
};

} // namespace quillon
