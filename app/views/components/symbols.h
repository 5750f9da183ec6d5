#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

#include <array>
#include <cstddef>

namespace quillon {

/// The program's own pictograms. Their names say what they show.
enum class Symbol {
    bell,
    bellSlash,
    checkmark,
    checkmarkCircleFill,
    commandSquare,
    exclamationMarkTriangle,
    gearShape,
    graduationCap,
    handRaised,
    hourglass,
    keyboard,
    keyboardBadgeEllipsis,
    magnifyingGlass,
    menuBarRectangle,
    noteText,
    noteTextBadgePlus,
    pin,
    pinFill,
    printer,
    scribbleVariable,
    sidebarLeft,
    xmarkCircleFill,
};

inline constexpr std::array allSymbols{
    Symbol::bell,
    Symbol::bellSlash,
    Symbol::checkmark,
    Symbol::checkmarkCircleFill,
    Symbol::commandSquare,
    Symbol::exclamationMarkTriangle,
    Symbol::gearShape,
    Symbol::graduationCap,
    Symbol::handRaised,
    Symbol::hourglass,
    Symbol::keyboard,
    Symbol::keyboardBadgeEllipsis,
    Symbol::magnifyingGlass,
    Symbol::menuBarRectangle,
    Symbol::noteText,
    Symbol::noteTextBadgePlus,
    Symbol::pin,
    Symbol::pinFill,
    Symbol::printer,
    Symbol::scribbleVariable,
    Symbol::sidebarLeft,
    Symbol::xmarkCircleFill,
};
static_assert(allSymbols.size() == static_cast<std::size_t>(Symbol::xmarkCircleFill) + 1);

/// "hand.raised", "keyboard" …
QString symbolName(Symbol symbol);

/// The symbol in one colour, `size` logical pixels square, for a screen with `ratio` device pixels each. A
/// symbol of something that follows the direction of reading, as a side bar does, is mirrored from right to
/// left. Drawn once and then kept.
QPixmap symbolPixmap(
    Symbol symbol, int size, const QColor& colour, double ratio,
    Qt::LayoutDirection direction = Qt::LeftToRight);

/// The program's mark in its own colours, `size` logical pixels square. Drawn once and then kept.
QPixmap productMark(int size, double ratio);

/// The program's sign for the tray in one colour, `size` device pixels square.
QPixmap traySign(int size, const QColor& colour);

} // namespace quillon
