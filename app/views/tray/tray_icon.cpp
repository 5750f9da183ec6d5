#include "tray_icon.h"

#include <quillon/app/views/components/symbols.h>

namespace quillon {

using namespace Qt::StringLiterals;

QIcon trayIcon(ColourScheme scheme) {
    const QColor colour = Palette::forScheme(scheme).primary;
    QIcon drawn;
    for (const int size : {16, 22, 24, 32, 48, 64})
        drawn.addPixmap(traySign(size, colour));
    return QIcon::fromTheme(u"app.quillon.Quillon-symbolic"_s, drawn);
}

QIcon productIcon() {
    return QIcon::fromTheme(u"app.quillon.Quillon"_s, QIcon(u":/quillon/app.quillon.Quillon.svg"_s));
}

} // namespace quillon
