#pragma once

#include <QPainterPath>
#include <QString>

#include <vector>

namespace quillon {

/// A line or a filled area of a drawing, in the drawing's units.
struct SvgStroke {
    QPainterPath path;
    double width = 0; ///< of the line; 0 for an area
};

/// What an SVG file draws, in units of its view box, which is `units` wide and high. Lines end and join
/// round; colours are left out.
std::vector<SvgStroke> svgStrokes(const QString& file, int units);

} // namespace quillon
