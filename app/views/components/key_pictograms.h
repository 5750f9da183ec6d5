#pragma once

#include <QPainterPath>
#include <QSize>
#include <QString>

namespace quillon {

/// The program's own drawings of the modifiers and of the keys that have a sign instead of a word.
namespace KeyPictograms {

/// Whether a cap with this text ("⌘", "⌫") is drawn instead of written.
bool has(const QString& cap);

/// How wide the drawing's ink is, in font sizes. Of a cap that is drawn.
double widthPerSize(const QString& cap);

/// How many pixels the drawing's ink fills for text of `size` device pixels. Of a cap that is drawn.
QSize inkSize(const QString& cap, double size);

struct Drawing {
    QSize size;        ///< the ink fills exactly this many pixels
    QPainterPath path; ///< to be filled, from the origin; straight lines lie on whole pixels
};

/// For text of `size` device pixels. Of a cap that is drawn.
Drawing drawing(const QString& cap, double size);

} // namespace KeyPictograms

} // namespace quillon
