#pragma once

#include <QPixmap>

namespace quillon {

/// The tray's icon at the usual sizes, on a light and on a dark tray, each pixel enlarged so many times.
QPixmap trayIconPicture(int enlargement);

} // namespace quillon
