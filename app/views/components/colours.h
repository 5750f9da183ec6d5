#pragma once

#include <QColor>
#include <QString>

/// Arithmetic of colours.
namespace quillon::Colours {

/// The same colour, `opacity` (0 to 1) times as opaque.
QColor withOpacity(QColor colour, double opacity);

/// What is seen when `top` lies on the opaque `bottom`; opaque.
QColor over(const QColor& top, const QColor& bottom);

/// The contrast ratio of WCAG 2, from 1 (none) to 21, of text in `foreground` on the opaque `background`.
double contrast(const QColor& foreground, const QColor& background);

/// As style sheets write it.
QString css(const QColor& colour);

} // namespace quillon::Colours
