#pragma once

#include <quillon/app/views/components/palette.h>

#include <QIcon>

namespace quillon {

/// The program's sign in the tray: from the icon theme where it is installed, so that the panel may colour
/// it; else drawn to stand out in this colour scheme.
QIcon trayIcon(ColourScheme scheme);

/// The program's mark in colour.
QIcon productIcon();

} // namespace quillon
