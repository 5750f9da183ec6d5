#pragma once

#include <quillon/app/views/components/theme.h>

#include <QImage>

namespace quillon {

/// Every cap that a shortcut can show, as a screen with `ratio` device pixels per point draws it, each device
/// pixel enlarged `enlarged` times.
QImage capPicture(const Theme& theme, double ratio, int enlarged);

} // namespace quillon
