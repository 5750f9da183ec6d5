#pragma once

#include "theme.h"

#include <QMenu>

namespace quillon {

/// Gives a context menu the look of the panels; the items that it has so far show no icons.
void styleMenu(QMenu& menu, const Theme& theme);

} // namespace quillon
