#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <QString>

namespace quillon {

/// Something drawn in one colour, as a screen shows it, and where its ink is seen. Fonts and paths tell of
/// their outlines only; what a small size makes of them is known from the picture.
struct Ink {
    QImage image;  ///< in device pixels
    QRectF bounds; ///< in the image; a pixel at the edge that is half covered counts half. Empty for no ink

    /// One line of text for a screen with `ratio` device pixels per point. All texts of one font stand on one
    /// line of their images.
    static Ink ofText(const QString& text, const QFont& font, const QColor& colour, double ratio);
    /// A filled path that lies in the box of this size from the origin, in device pixels.
    static Ink ofPath(const QPainterPath& path, QSize size, const QColor& colour);
};

/// Whether the text's place on its line matters: letters and digits stand on it, commas and accents are told
/// apart by their height over it. Other signs may be centred.
bool standsOnLine(const QString& text);

} // namespace quillon
