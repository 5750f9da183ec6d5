#include "symbol_pictures.h"

#include <quillon/app/views/components/symbols.h>

#include <QPainter>

#include <array>
#include <numeric>

namespace quillon {

namespace {

constexpr int margin = 6;
constexpr std::array sizes{13, 15, 16, 18, 20, 24, 34};

int lineHeight() {
    return sizes.back() + margin;
}

QSize room() {
    const int line = std::accumulate(sizes.begin(), sizes.end(), static_cast<int>(sizes.size()) * margin);
    const int columns = 2;
    const int lines = (static_cast<int>(allSymbols.size()) + columns - 1) / columns;
    return {columns * line + 2 * margin, lines * lineHeight() + margin};
}

QPoint placeOf(std::size_t index) {
    const int lines = (static_cast<int>(allSymbols.size()) + 1) / 2;
    const int at = static_cast<int>(index);
    return {margin + at / lines * (room().width() / 2), margin + at % lines * lineHeight()};
}

} // namespace

QImage symbolPicture(const Theme& theme, double ratio, int enlarged, Qt::LayoutDirection direction) {
    QImage picture(room() * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(theme.palette.window);
    QPainter painter(&picture);
    for (std::size_t index = 0; index < allSymbols.size(); ++index) {
        QPoint at = placeOf(index);
        for (const int size : sizes) {
            painter.drawPixmap(
                at, symbolPixmap(allSymbols[index], size, theme.palette.primary, ratio, direction));
            at.rx() += size + margin;
        }
    }
    painter.end();
    picture.setDevicePixelRatio(1);
    return picture.scaled(picture.size() * enlarged);
}

} // namespace quillon
