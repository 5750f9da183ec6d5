#pragma once

#include "theme.h"

#include <QMenu>

namespace quillon {

/// Gives a menu the look of the panels, round corners included: before it is shown, and again when the theme
/// changes. The items that it has so far show no icons.
void styleMenu(QMenu& menu, const Theme& theme);

} // namespace quillon
