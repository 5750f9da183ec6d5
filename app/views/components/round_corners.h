#pragma once

#include <QWidget>

namespace quillon {

/// Keeps a menu or a list that opens above other windows cut to a box with corners of this radius, in logical
/// pixels. Cut, not translucent: not every desktop blends windows.
void roundCorners(QWidget& popUp, int radius);

} // namespace quillon
