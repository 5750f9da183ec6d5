#pragma once

#include <QFontMetricsF>
#include <QString>

#include <cmath>

namespace quillon {

/// The least whole number of logical pixels in which a line is not elided.
inline int lineRoom(const QFont& font, const QString& line) {
    return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(line)));
}

} // namespace quillon
