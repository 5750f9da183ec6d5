#include "round_corners.h"

#include <QEvent>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// A box without what lies outside of its rounded corners.
QRegion roundedRegion(const QRect& box, int radius) {
    QRegion region(box.adjusted(0, radius, 0, -radius));
    for (int row = 0; row < radius; ++row) {
        const double up = radius - (row + 0.5);
        const int cut = static_cast<int>(std::ceil(radius - std::sqrt(radius * radius - up * up) - 0.5));
        const int left = box.left() + std::max(cut, 0);
        const int width = box.width() - 2 * std::max(cut, 0);
        region += QRect(left, box.top() + row, width, 1);
        region += QRect(left, box.bottom() - row, width, 1);
    }
    return region;
}

class RoundCorners final : public QObject {
  public:
    RoundCorners(QWidget& popUp, int radius) : QObject(&popUp), m_popUp(popUp), m_radius(radius) {
        popUp.installEventFilter(this);
    }

    void setRadius(int radius) {
        m_radius = radius;
        m_popUp.setMask(roundedRegion(m_popUp.rect(), radius));
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize)
            m_popUp.setMask(roundedRegion(m_popUp.rect(), m_radius));
        return QObject::eventFilter(watched, event);
    }

  private:
    QWidget& m_popUp;
    int m_radius;
};

} // namespace

void roundCorners(QWidget& popUp, int radius) {
    for (QObject* const child : popUp.children())
        if (auto* const corners = dynamic_cast<RoundCorners*>(child))
            return corners->setRadius(radius);
    new RoundCorners(popUp, radius);
}

} // namespace quillon
