#pragma once

#include "page_layout.h"

#include <QRectF>

namespace quillon {

/// Places a column's lines below each other in `room` and appends them to `page`. Lines take the height that
/// suits them; what is left over is given to notes that need more than one line. Lines that are too many for
/// the room come closer together.
void layOutColumn(
    const CheatSheet::Column& column, const QRectF& room, const PrintedSheet& sheet, const PageFonts& fonts,
    PageLayout& page);

} // namespace quillon
