#pragma once

#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace quillon {

/// Puts a page into the middle of `paper`, as large as it fits; turned by a quarter where it is larger then.
QTransform fittedTo(const QRectF& paper, QSizeF page);

} // namespace quillon
