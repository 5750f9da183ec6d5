#include "dock_struts.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillon {

namespace {

using Edge = DockStrut::Edge;

/// X counts no further than this.
constexpr std::uint32_t farthest = 65535;

/// From `begin` up to, without, `end`.
struct Span {
    int begin = 0;
    int end = 0;

    bool meets(const Span& other) const { return begin < other.end && other.begin < end; }
    int length() const { return end - begin; }
};

Span across(const PixelBox& box) {
    return {box.x, box.x + box.width};
}

Span down(const PixelBox& box) {
    return {box.y, box.y + box.height};
}

bool isUpright(Edge edge) {
    return edge == Edge::left || edge == Edge::right;
}

/// Cuts what a strut takes of a monitor off `free`; both are the spans from the strut's edge inwards.
void cut(Span& free, const Span& monitor, const Span& desktop, const DockStrut& strut) {
    if (strut.edge == Edge::left || strut.edge == Edge::top) {
        const int taken = desktop.begin + strut.depth;
        if (taken < monitor.end)
            free.begin = std::max(free.begin, taken);
    } else {
        const int taken = desktop.end - strut.depth;
        if (taken > monitor.begin)
            free.end = std::min(free.end, taken);
    }
}

} // namespace

std::vector<DockStrut> dockStruts(std::span<const std::uint32_t> numbers) {
    constexpr std::array edges{Edge::left, Edge::right, Edge::top, Edge::bottom};
    const bool isPartial = numbers.size() == 3 * edges.size();
    if (!isPartial && numbers.size() != edges.size())
        return {};
    const auto number = [&](std::size_t at) { return static_cast<int>(std::min(numbers[at], farthest)); };
    std::vector<DockStrut> result;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const std::size_t range = edges.size() + 2 * i;
        DockStrut strut{edges[i], number(i), 0, static_cast<int>(farthest) + 1};
        if (isPartial) {
            strut.begin = number(range);
            strut.end = number(range + 1) + 1;
        }
        if (strut.depth > 0 && strut.begin < strut.end)
            result.push_back(strut);
    }
    return result;
}

PixelBox freeBox(const PixelBox& monitor, const PixelBox& desktop, std::span<const DockStrut> struts) {
    Span x = across(monitor);
    Span y = down(monitor);
    for (const DockStrut& strut : struts) {
        const Span along{strut.begin, strut.end};
        if (isUpright(strut.edge) && along.meets(down(monitor)))
            cut(x, across(monitor), across(desktop), strut);
        else if (!isUpright(strut.edge) && along.meets(across(monitor)))
            cut(y, down(monitor), down(desktop), strut);
    }
    if (x.length() <= 0 || y.length() <= 0)
        return monitor;
    return {x.begin, y.begin, x.length(), y.length()};
}

} // namespace quillon
