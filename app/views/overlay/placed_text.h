#pragma once

#include <QRectF>
#include <QString>

namespace quillon {

/// Between the parts of a line, in logical pixels.
inline constexpr double partGap = 8;

/// One line of text of a row.
struct PlacedText {
    QString text;
    QRectF rect;         ///< the text stays inside
    double baseline = 0; ///< from the row's top
    bool elided = false;

    bool operator==(const PlacedText&) const = default;
};

} // namespace quillon
