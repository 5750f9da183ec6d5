#pragma once

#include <quillon/app/platform/qt/panels/panel_windows.h>

#include <cstdint>
#include <span>
#include <vector>

namespace quillon {

/// The pixels along an edge of the whole desktop that a dock keeps for itself.
struct DockStrut {
    enum class Edge { left, right, top, bottom };

    Edge edge = Edge::left;
    int depth = 0; ///< from the edge inwards
    int begin = 0; ///< along the edge, from its left or upper end
    int end = 0;   ///< behind the last pixel

    bool operator==(const DockStrut&) const = default;
};

/// What a window's _NET_WM_STRUT_PARTIAL (twelve numbers) or _NET_WM_STRUT (four) says. Empty for any other
/// count of numbers; impossibly large ones are cut.
std::vector<DockStrut> dockStruts(std::span<const std::uint32_t> numbers);

/// What docks leave free of a monitor. A strut counts from the edge of the desktop, so one that reaches all
/// the way across a monitor belongs to a dock behind it and takes nothing of it. All of the monitor when
/// nothing would be left.
PixelBox freeBox(const PixelBox& monitor, const PixelBox& desktop, std::span<const DockStrut> struts);

} // namespace quillon
