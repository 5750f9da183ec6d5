#pragma once

#include "theme.h"

#include <QScrollBar>

namespace quillon {

/// The width of a thin scroll bar, in logical pixels.
inline constexpr int thinScrollBarWidth = 10;

/// Makes a vertical scroll bar a thin thumb without arrows.
void makeThin(QScrollBar& bar, const Theme& theme);

} // namespace quillon
