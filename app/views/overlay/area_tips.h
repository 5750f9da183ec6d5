#pragma once

#include "area_layout.h"

#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

namespace quillon {

/// What had to be shortened, told in full.
struct AreaTip {
    QString html; ///< no text of an application is markup in it
    QRectF box;   ///< of the row or heading that it is about
};

/// For the row or heading at this point of the layout; absent where everything is shown.
std::optional<AreaTip> tipAt(
    QPointF point, const AreaContent& content, const PreparedSheet& sheet, const AreaLayout& layout,
    const TextMeasure& measure);

} // namespace quillon
