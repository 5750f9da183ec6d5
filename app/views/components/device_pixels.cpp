#include "device_pixels.h"

#include <QTransform>

#include <cmath>

namespace quillon {

QPointF onDevicePixel(const QPainter& painter, QPointF point) {
    const QTransform& toDevice = painter.deviceTransform();
    const QPointF onDevice = toDevice.map(point);
    return toDevice.inverted().map(QPointF(std::round(onDevice.x()), std::round(onDevice.y())));
}

QRectF onDevicePixels(const QPainter& painter, const QRectF& box) {
    return {onDevicePixel(painter, box.topLeft()), onDevicePixel(painter, box.bottomRight())};
}

} // namespace quillon
