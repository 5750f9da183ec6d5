#include "symbols.h"

#include "keyboard_symbol.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// An SVG file of the program's resources.
QPixmap rendered(const QString& file, int size, double ratio) {
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(file).render(&painter, QRectF(pixmap.rect()));
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QPixmap tinted(QPixmap pixmap, const QColor& colour) {
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(0, 0), pixmap.deviceIndependentSize()), colour);
    return pixmap;
}

/// What `draw` gives, from the cache where it is there.
template <class Draw>
QPixmap kept(const QString& key, Draw draw) {
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = draw();
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace

QString symbolName(Symbol symbol) {
    switch (symbol) {
    case Symbol::handRaised: return u"hand.raised"_s;
    case Symbol::hourglass: return u"hourglass"_s;
    case Symbol::keyboard: return u"keyboard"_s;
    case Symbol::keyboardBadgeEllipsis: return u"keyboard.badge.ellipsis"_s;
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
    return kept(key, [&] {
        if (symbol == Symbol::keyboard)
            return tinted(keyboardPicture(size, ratio), colour);
        if (symbol == Symbol::keyboardBadgeEllipsis)
            return tinted(keyboardWithEllipsis(size, ratio), colour);
        return tinted(rendered(u":/quillon/symbols/"_s + name + u".svg"_s, size, ratio), colour);
    });
}

QPixmap productMark(int size, double ratio) {
    const QString key = u"quillon-mark/%1/%2"_s.arg(size).arg(std::lround(ratio * 1000));
    return kept(key, [&] { return rendered(u":/quillon/app.quillon.Quillon.svg"_s, size, ratio); });
}

} // namespace quillon
