#pragma once

#include <quillon/app/ports/app_icons.h>
#include <quillon/app/ports/appearance.h>

namespace quillon {

/// The program's sign in the icon theme, for trays that colour it themselves.
inline constexpr const char* trayIconName = "app.quillon.Quillon-symbolic";

/// The program's sign, `size` device pixels square, to stand out in a tray of this scheme.
IconPixels trayIcon(ColourScheme tray, int size);

} // namespace quillon
