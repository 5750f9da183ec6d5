#include "app_icon_cache.h"

#include "text.h"

#include <QIcon>
#include <QImage>

#include <cmath>
#include <cstring>
#include <type_traits>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Far more applications than anyone switches between; a bound against ever new identifiers.
constexpr qsizetype mostKept = 128;
/// The widest icon that a desktop has a use for; larger ones are mistakes or malice.
constexpr int widestIcon = 4096;

QPixmap fromPixels(const IconPixels& icon, QSize size) {
    const auto count = static_cast<std::size_t>(icon.width) * static_cast<std::size_t>(icon.height);
    const bool plausible = icon.width > 0 && icon.height > 0 && icon.width <= widestIcon
                           && icon.height <= widestIcon && icon.argb.size() == count;
    if (!plausible)
        return {};
    QImage image(icon.width, icon.height, QImage::Format_ARGB32);
    for (int y = 0; y < icon.height; ++y) {
        const auto row = static_cast<std::size_t>(y) * static_cast<std::size_t>(icon.width);
        std::memcpy(image.scanLine(y), icon.argb.data() + row, static_cast<std::size_t>(icon.width) * 4);
    }
    return QPixmap::fromImage(image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

QPixmap load(const AppIcon& icon, int size, double ratio) {
    const QSize logical(size, size);
    const auto draw = [&](const auto& source) -> QPixmap {
        using Source = std::remove_cvref_t<decltype(source)>;
        if constexpr (std::is_same_v<Source, IconPixels>) {
            QPixmap pixmap = fromPixels(source, logical * ratio);
            pixmap.setDevicePixelRatio(ratio);
            return pixmap;
        } else if constexpr (std::is_same_v<Source, IconFile>) {
            return QIcon(text(source.path)).pixmap(logical, ratio);
        } else {
            return QIcon::fromTheme(text(source.name)).pixmap(logical, ratio);
        }
    };
    return std::visit(draw, icon);
}

} // namespace

QPixmap AppIconCache::pixmap(const std::string& bundleID, int size, double ratio) {
    const QString key = u"%1/%2/%3"_s.arg(size).arg(std::lround(ratio * 1000)).arg(text(bundleID));
    if (const auto known = m_pixmaps.constFind(key); known != m_pixmaps.constEnd())
        return *known;
    const std::optional<AppIcon> icon = m_icons.icon(bundleID);
    QPixmap pixmap = icon ? load(*icon, size, ratio) : QPixmap();
    if (pixmap.isNull())
        return pixmap;
    if (m_pixmaps.size() >= mostKept)
        m_pixmaps.clear();
    m_pixmaps.insert(key, pixmap);
    return pixmap;
}

} // namespace quillon
