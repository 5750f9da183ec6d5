#pragma once

#include <QPainterPath>

namespace quillon {

/// A box of whole pixels with lines of whole pixels in it. Its edges are even when the line's width is, and
/// odd when that is odd, so that a line down the middle lies on whole pixels too.
class PictogramGrid {
  public:
    /// The box nearest to this size.
    PictogramGrid(double width, double height, int line);

    int width() const { return m_width; }
    int height() const { return m_height; }
    int line() const { return m_line; }
    double middle() const { return m_width / 2.0; }

    /// The length nearest to `wanted` that lies as evenly around the middle as a line does.
    int centred(double wanted) const;

  private:
    int m_line;
    int m_width;
    int m_height;
};

/// Drawings that fill the grid's box from edge to edge. Arrows point up.
namespace PictogramPaths {

QPainterPath chevron(const PictogramGrid& grid);
QPainterPath chevronBelowBar(const PictogramGrid& grid);
QPainterPath arrow(const PictogramGrid& grid);
QPainterPath barredArrow(const PictogramGrid& grid);
QPainterPath arrowToBar(const PictogramGrid& grid);
QPainterPath hollowArrow(const PictogramGrid& grid);
/// Points to the upper left.
QPainterPath cornerArrow(const PictogramGrid& grid);
/// Points to the left.
QPainterPath hookedArrow(const PictogramGrid& grid);
QPainterPath arrowOutOfCircle(const PictogramGrid& grid);
QPainterPath option(const PictogramGrid& grid);
QPainterPath loopedSquare(const PictogramGrid& grid);
QPainterPath crossedBox(const PictogramGrid& grid);
/// A box with its point to the left.
QPainterPath crossedTag(const PictogramGrid& grid);
QPainterPath wedgeOnBar(const PictogramGrid& grid);

} // namespace PictogramPaths

} // namespace quillon
