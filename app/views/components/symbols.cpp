#include "symbols.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QPixmap drawn(const QString& file, int size, const QColor& colour, double ratio) {
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(file).render(&painter, QRectF(pixmap.rect()));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QString symbolName(Symbol symbol) {
    switch (symbol) {
    case Symbol::handRaised: return u"hand.raised"_s;
    case Symbol::hourglass: return u"hourglass"_s;
    case Symbol::keyboard: return u"keyboard"_s;
    case Symbol::magnifyingGlass: return u"magnifyingglass"_s;
    case Symbol::menuBarRectangle: return u"menubar.rectangle"_s;
    case Symbol::pinFill: return u"pin.fill"_s;
    case Symbol::xmarkCircleFill: return u"xmark.circle.fill"_s;
    }
    Q_UNREACHABLE();
}

QPixmap symbolPixmap(Symbol symbol, int size, const QColor& colour, double ratio) {
    const QString name = symbolName(symbol);
    const QString key = u"quillon-symbol/%1/%2/%3/%4"_s.arg(name)
                            .arg(size)
                            .arg(colour.rgba(), 8, 16)
                            .arg(std::lround(ratio * 1000));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = drawn(u":/quillon/symbols/"_s + name + u".svg"_s, size, colour, ratio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

QPixmap traySign(int size, const QColor& colour) {
    return drawn(u":/quillon/app.quillon.Quillon-symbolic.svg"_s, size, colour, 1);
}

} // namespace quillon
