#pragma once

/// The measures of a printed page, in points: US Letter upright.
namespace quillon::PageMeasures {

inline constexpr double width = 612;
inline constexpr double height = 792;
inline constexpr double margin = 36;
inline constexpr int columns = 3;
inline constexpr int linesPerColumn = 30;
inline constexpr double columnGap = 10;
inline constexpr double columnWidth = (width - 2 * margin - (columns - 1) * columnGap) / columns;
inline constexpr double capRadius = 4;

} // namespace quillon::PageMeasures
