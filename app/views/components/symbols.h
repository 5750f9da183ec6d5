#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

namespace quillon {

/// The program's own pictograms. Their names say what they show.
enum class Symbol {
    handRaised,
    hourglass,
    keyboard,
    keyboardBadgeEllipsis,
    magnifyingGlass,
    menuBarRectangle,
    pinFill,
    xmarkCircleFill,
};

/// "hand.raised", "keyboard" …
QString symbolName(Symbol symbol);

/// The symbol in one colour, `size` logical pixels square, for a screen with `ratio` device pixels each.
/// Drawn once and then kept.
QPixmap symbolPixmap(Symbol symbol, int size, const QColor& colour, double ratio);

/// The program's mark in its own colours, `size` logical pixels square. Drawn once and then kept.
QPixmap productMark(int size, double ratio);

} // namespace quillon
