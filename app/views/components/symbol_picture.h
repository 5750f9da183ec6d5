#pragma once

#include <QPixmap>
#include <QString>

namespace quillon {

/// The symbol in an SVG file of 24 × 24 units, black, `size` logical pixels square. Its straight lines cover
/// whole device pixels: they are moved to where the pixels are, and what lies between moves along.
QPixmap symbolPicture(const QString& file, int size, double ratio);

} // namespace quillon
