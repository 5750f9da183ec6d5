#pragma once

#include <quillon/app/views/components/theme.h>

#include <QImage>

namespace quillon {

/// Every symbol at the sizes that the program uses, as a screen with `ratio` device pixels per point draws
/// them, each device pixel enlarged `enlarged` times.
QImage symbolPicture(const Theme& theme, double ratio, int enlarged, Qt::LayoutDirection direction);

} // namespace quillon
