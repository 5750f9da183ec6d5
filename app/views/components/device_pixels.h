#pragma once

#include <QPainter>
#include <QPointF>
#include <QRectF>

namespace quillon {

/// The point on the painter's device, between whole pixels, that is nearest to `point`; both in the painter's
/// coordinates.
QPointF onDevicePixel(const QPainter& painter, QPointF point);

/// The box with each edge moved between whole pixels; boxes that touched still do.
QRectF onDevicePixels(const QPainter& painter, const QRectF& box);

} // namespace quillon
