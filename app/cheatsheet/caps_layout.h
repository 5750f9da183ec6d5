#pragma once

#include "page_layout.h"

#include <QPointF>
#include <QString>
#include <QStringList>

namespace quillon {

/// A shortcut's key caps in a row. Those too wide for the room are drawn smaller as a whole.
struct CapRow {
    QStringList caps;
    double scale = 1;
    double width = 0; ///< in points, scaled

    static CapRow of(const QStringList& caps, double room, const PageFonts& fonts);

    /// Appends the caps to `page`, their left end and middle at `at`.
    void place(QPointF at, const PageFonts& fonts, PageLayout& page) const;
};

/// Appends one line of words to `page`, the signs of keys among them drawn. Returns its width.
double placeWithSigns(
    const QString& text, QPointF start, PageFont font, PageInk ink, const PageFonts& fonts, PageLayout& page);

/// The width of such a line.
double widthWithSigns(const QString& text, PageFont font, const PageFonts& fonts);

} // namespace quillon
