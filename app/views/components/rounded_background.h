#pragma once

#include "nine_patch.h"

#include <QColor>

#include <optional>

namespace quillon {

/// A filled box with rounded corners and a thin border, drawn anew only for other colours or another screen.
class RoundedBackground {
  public:
    /// `cornerRadius` in logical pixels.
    explicit RoundedBackground(double cornerRadius) : m_cornerRadius(cornerRadius) {}

    void paint(QPainter& painter, const QRectF& box, const QColor& fill, const QColor& border);

    /// The device pixels per logical pixel of the screen that it was painted for last; absent before.
    std::optional<double> ratio() const;

  private:
    double m_cornerRadius;
    QColor m_fill;
    QColor m_border;
    std::optional<NinePatch> m_drawn;
};

} // namespace quillon
