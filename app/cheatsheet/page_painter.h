#pragma once

#include "page_layout.h"

#include <QPainter>

namespace quillon {

/// Draws a page in the painter's coordinates, one unit a point. On white and in light colours, whatever the
/// desktop wears. Words stay words, which readers of documents find.
void paintPage(QPainter& painter, const PageLayout& page, const PageFonts& fonts);

} // namespace quillon
