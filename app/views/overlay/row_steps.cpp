#include "row_steps.h"

#include <cmath>
#include <limits>

namespace quillon {

namespace {

/// The row for which `cost` is least; rows of infinite cost are out of the question.
template <class Cost>
std::size_t cheapest(const AreaLayout& layout, std::size_t fallback, Cost cost) {
    std::size_t best = fallback;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        const double candidate = cost(layout.rows[row].rect);
        if (candidate < least) {
            least = candidate;
            best = row;
        }
    }
    return best;
}

/// How much worse a row is that lies higher or lower, against one that lies further to the side.
constexpr double aside = 4;

constexpr double never = std::numeric_limits<double>::infinity();

/// Rows that overlap sideways are in one column, whichever card they are in.
double sidewaysDistance(const QRectF& a, const QRectF& b) {
    if (a.right() < b.left())
        return b.left() - a.right();
    if (b.right() < a.left())
        return a.left() - b.right();
    return 0;
}

std::size_t vertically(const AreaLayout& layout, std::size_t from, bool down) {
    const QRectF start = layout.rows[from].rect;
    return cheapest(layout, from, [&](const QRectF& rect) {
        const double distance = down ? rect.top() - start.bottom() : start.top() - rect.bottom();
        if (distance < -0.5 || sidewaysDistance(start, rect) > 0)
            return never;
        // Of several equally far, the one whose left edge is nearest.
        return distance * 1000 + std::abs(rect.left() - start.left());
    });
}

std::size_t horizontally(const AreaLayout& layout, std::size_t from, bool right) {
    const QRectF start = layout.rows[from].rect;
    return cheapest(layout, from, [&](const QRectF& rect) {
        const double distance = right ? rect.left() - start.right() : start.left() - rect.right();
        if (distance < -0.5)
            return never;
        return distance + aside * std::abs(rect.center().y() - start.center().y());
    });
}

std::size_t byPage(const AreaLayout& layout, std::size_t from, double offset) {
    const QRectF start = layout.rows[from].rect;
    const double wanted = start.center().y() + offset;
    return cheapest(layout, from, [&](const QRectF& rect) {
        if (sidewaysDistance(start, rect) > 0)
            return never;
        return std::abs(rect.center().y() - wanted) * 1000 + std::abs(rect.left() - start.left());
    });
}

/// Of several, the last in reading order.
std::size_t lowest(const AreaLayout& layout) {
    std::size_t best = 0;
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        if (layout.rows[row].rect.bottom() >= layout.rows[best].rect.bottom())
            best = row;
    }
    return best;
}

} // namespace

std::size_t rowAfterStep(const AreaLayout& layout, std::size_t from, RowStep step, double page) {
    switch (step) {
    case RowStep::up: return vertically(layout, from, false);
    case RowStep::down: return vertically(layout, from, true);
    case RowStep::left: return horizontally(layout, from, false);
    case RowStep::right: return horizontally(layout, from, true);
    case RowStep::first: return 0;
    case RowStep::last: return lowest(layout);
    case RowStep::pageUp: return byPage(layout, from, -page);
    case RowStep::pageDown: return byPage(layout, from, page);
    }
    return from;
}

} // namespace quillon
