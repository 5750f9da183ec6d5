#pragma once

#include <quillon/app/views/components/nine_patch.h>

#include <QColor>
#include <QPainter>
#include <QRectF>

#include <optional>

namespace quillon {

/// The soft shadow of a rounded panel. Blurred once, as a picture of its corners and edges, and then only
/// stretched.
class PanelShadow {
  public:
    /// How far the shadow reaches beyond the panel, in logical pixels.
    static constexpr int reach = 36;

    /// Draws the shadow of a panel at `panel` with rounded corners of `radius`, nothing inside of the panel.
    void paint(QPainter& painter, const QRectF& panel, double radius, const QColor& colour);

  private:
    std::optional<NinePatch> m_patch;
    double m_radius = 0;
    QColor m_colour;
};

} // namespace quillon
