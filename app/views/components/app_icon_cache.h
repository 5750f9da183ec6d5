#pragma once

#include <quillon/app/ports/app_icons.h>

#include <QHash>
#include <QPixmap>

#include <string>

namespace quillon {

/// Applications' icons as pixmaps, looked up until they are found.
class AppIconCache {
  public:
    /// `icons` outlives this.
    explicit AppIconCache(const AppIcons& icons) : m_icons(icons) {}

    /// The icon of an application, `size` logical pixels square, for a screen with `ratio` device pixels
    /// each. Null for an unknown application or an icon that cannot be read.
    QPixmap pixmap(const std::string& bundleID, int size, double ratio);

  private:
    const AppIcons& m_icons;
    QHash<QString, QPixmap> m_pixmaps;
};

} // namespace quillon
