#include "rounded_background.h"

namespace quillon {

void RoundedBackground::paint(
    QPainter& painter, const QRectF& box, const QColor& fill, const QColor& border) {
    const double screenRatio = painter.device()->devicePixelRatioF();
    if (ratio() != screenRatio || fill != m_fill || border != m_border) {
        m_fill = fill;
        m_border = border;
        m_drawn = roundedBox(m_cornerRadius, screenRatio, fill, border);
    }
    painter.fillRect(m_drawn->inside(painter, box), fill);
    m_drawn->paintFrame(painter, box);
}

std::optional<double> RoundedBackground::ratio() const {
    return m_drawn ? std::optional(m_drawn->ratio()) : std::nullopt;
}

} // namespace quillon
