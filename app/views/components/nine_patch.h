#pragma once

#include <QPainter>
#include <QPixmap>
#include <QRectF>

#include <functional>

namespace quillon {

/// A picture of a box whose corners are drawn once; for a box of any size they are copied and the straight
/// edges between them stretched. Everything is put on whole device pixels, so that no seam shows between the
/// pieces at any scale.
class NinePatch {
  public:
    /// Draws a box of this size at the origin.
    using Draw = std::function<void(QPainter& painter, const QRectF& box)>;

    /// `corner` is the size of a corner in logical pixels, everything that is not straight included.
    NinePatch(double corner, double ratio, const Draw& draw);

    /// Draws the corners and edges of `box` and leaves `inside` as it is.
    void paintFrame(QPainter& painter, const QRectF& box) const;
    /// What lies between the edges that `paintFrame` draws.
    QRectF inside(const QPainter& painter, const QRectF& box) const;

    double ratio() const { return m_ratio; }

  private:
    double corner() const { return m_corner / m_ratio; }

    int m_corner; ///< in device pixels
    double m_ratio;
    QPixmap m_tile;
};

/// A box with rounded corners, filled and with a border of about one logical pixel inside of its edge.
NinePatch roundedBox(double radius, double ratio, const QColor& fill, const QColor& border);

} // namespace quillon
