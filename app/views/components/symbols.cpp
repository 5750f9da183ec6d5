#include "symbols.h"

#include "keyboard_symbol.h"
#include "symbol_picture.h"

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

/// Whether a part of the symbol stands where a line of text begins or ends.
bool followsReading(Symbol symbol) {
    switch (symbol) {
    case Symbol::keyboardBadgeEllipsis:
    case Symbol::menuBarRectangle:
    case Symbol::noteText:
    case Symbol::noteTextBadgePlus:
    case Symbol::sidebarLeft: return true;
    default: return false;
    }
}

/// Black, from left to right.
QPixmap drawn(Symbol symbol, int size, double ratio) {
    if (symbol == Symbol::keyboard)
        return keyboardPicture(size, ratio);
    if (symbol == Symbol::keyboardBadgeEllipsis)
        return keyboardWithEllipsis(size, ratio);
    return symbolPicture(u":/quillon/symbols/"_s + symbolName(symbol) + u".svg"_s, size, ratio);
}

} // namespace

QString symbolName(Symbol symbol) {
    switch (symbol) {
    case Symbol::bell: return u"bell"_s;
    case Symbol::bellSlash: return u"bell.slash"_s;
    case Symbol::checkmark: return u"checkmark"_s;
    case Symbol::checkmarkCircleFill: return u"checkmark.circle.fill"_s;
    case Symbol::commandSquare: return u"command.square"_s;
    case Symbol::exclamationMarkTriangle: return u"exclamationmark.triangle"_s;
    case Symbol::gearShape: return u"gearshape"_s;
    case Symbol::graduationCap: return u"graduationcap"_s;
    case Symbol::handRaised: return u"hand.raised"_s;
    case Symbol::hourglass: return u"hourglass"_s;
    case Symbol::keyboard: return u"keyboard"_s;
    case Symbol::keyboardBadgeEllipsis: return u"keyboard.badge.ellipsis"_s;
    case Symbol::magnifyingGlass: return u"magnifyingglass"_s;
    case Symbol::menuBarRectangle: return u"menubar.rectangle"_s;
    case Symbol::noteText: return u"note.text"_s;
    case Symbol::noteTextBadgePlus: return u"note.text.badge.plus"_s;
    case Symbol::pin: return u"pin"_s;
    case Symbol::pinFill: return u"pin.fill"_s;
    case Symbol::printer: return u"printer"_s;
    case Symbol::scribbleVariable: return u"scribble.variable"_s;
    case Symbol::sidebarLeft: return u"sidebar.left"_s;
    case Symbol::xmarkCircleFill: return u"xmark.circle.fill"_s;
    }
    Q_UNREACHABLE();
}

QPixmap
symbolPixmap(Symbol symbol, int size, const QColor& colour, double ratio, Qt::LayoutDirection direction) {
    const bool mirrored = direction == Qt::RightToLeft && followsReading(symbol);
    const QString key = u"quillon-symbol/%1/%2/%3/%4/%5"_s.arg(symbolName(symbol))
                            .arg(size)
                            .arg(colour.rgba(), 8, 16)
                            .arg(std::lround(ratio * 1000))
                            .arg(mirrored);
    return kept(key, [&] {
        const QPixmap picture = drawn(symbol, size, ratio);
        return tinted(mirrored ? picture.transformed(QTransform::fromScale(-1, 1)) : picture, colour);
    });
}

QPixmap productMark(int size, double ratio) {
    const QString key = u"quillon-mark/%1/%2"_s.arg(size).arg(std::lround(ratio * 1000));
    return kept(key, [&] { return rendered(u":/quillon/app.quillon.Quillon.svg"_s, size, ratio); });
}

QPixmap traySign(int size, const QColor& colour) {
    return tinted(rendered(u":/quillon/app.quillon.Quillon-symbolic.svg"_s, size, 1), colour);
}

} // namespace quillon
