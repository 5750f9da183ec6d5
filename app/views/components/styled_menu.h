#pragma once

#include "theme.h"

#include <QMenu>

namespace quillon {

/// Gives a context menu that is not shown yet the look of the panels, round corners included; the items that
/// it has so far show no icons.
void styleMenu(QMenu& menu, const Theme& theme);

} // namespace quillon
