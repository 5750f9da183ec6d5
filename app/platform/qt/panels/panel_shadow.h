#pragma once

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QRect>

namespace quillon {

/// The soft shadow of a rounded panel. Blurred once, as a picture of its corners and edges, and then only
/// stretched.
class PanelShadow {
  public:
    /// How far the shadow reaches beyond the panel, in logical pixels.
    static constexpr int reach = 36;

    /// Draws the shadow of a panel at `panel` with rounded corners of `radius`, nothing inside of the panel.
    void paint(QPainter& painter, const QRect& panel, double radius, const QColor& colour);

  private:
    QPixmap m_picture; ///< of the smallest panel
    double m_radius = 0;
    QColor m_colour;
};

} // namespace quillon
