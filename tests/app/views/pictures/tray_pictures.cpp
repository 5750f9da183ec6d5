#include "tray_pictures.h"

#include <quillon/app/views/tray/tray_icon.h>

#include <QImage>
#include <QPainter>

#include <array>
#include <numeric>

namespace quillon {

namespace {

constexpr std::array sizes{16, 18, 20, 22, 24, 32, 44, 48, 64};
constexpr int gap = 4; ///< in the icons' pixels

QImage imageOf(const IconPixels& icon) {
    const QImage borrowed(
        reinterpret_cast<const uchar*>(icon.argb.data()), icon.width, icon.height, QImage::Format_ARGB32);
    return borrowed.copy();
}

} // namespace

QPixmap trayIconPicture(int enlargement) {
    const int width = std::accumulate(sizes.begin(), sizes.end(), gap * static_cast<int>(sizes.size() + 1));
    const int height = sizes.back() + 2 * gap;
    QImage icons(width, 2 * height, QImage::Format_RGB32);
    icons.fill(QColor(0xf2, 0xf2, 0xf2));
    QPainter painter(&icons);
    painter.fillRect(0, height, width, height, QColor(0x24, 0x24, 0x24));
    int left = gap;
    for (const int size : sizes) {
        painter.drawImage(left, gap, imageOf(trayIcon(ColourScheme::light, size)));
        painter.drawImage(left, height + gap, imageOf(trayIcon(ColourScheme::dark, size)));
        left += size + gap;
    }
    painter.end();
    return QPixmap::fromImage(icons.scaled(icons.size() * enlargement));
}

} // namespace quillon
