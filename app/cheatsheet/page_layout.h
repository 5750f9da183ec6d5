#pragma once

#include "page_fonts.h"
#include "printed_sheet.h"

#include <QPointF>
#include <QRectF>
#include <QString>

#include <variant>
#include <vector>

namespace quillon {

enum class PageInk {
    primary,   ///< black
    secondary, ///< for what accompanies
    note,      ///< grey of 75 % strength
};

/// Words on one line, which fit.
struct PlacedText {
    QPointF start; ///< left end of the line that they stand on
    double width = 0;
    PageFont font = PageFont::title;
    PageInk ink = PageInk::primary;
    QString text;
    double scale = 1; ///< of the font's size
};

/// A sign of a key, drawn instead of written.
struct PlacedSign {
    QRectF box; ///< which its ink fills
    QString sign;
    PageFont font = PageFont::cap; ///< that it stands in for
    PageInk ink = PageInk::primary;
    QPointF start;    ///< where readers that search find it: on the line that it would stand on
    double width = 0; ///< as far as they find it
    double scale = 1; ///< of the font's size
};

/// The ground of a key cap.
struct PlacedCap {
    QRectF box;
};

/// The mark of a pinned command.
struct PlacedPin {
    QRectF box;
};

/// The line below a menu's name.
struct PlacedRule {
    QPointF start;
    double width = 0;
};

using Placed = std::variant<PlacedText, PlacedSign, PlacedCap, PlacedPin, PlacedRule>;

/// Where everything on a page is, in points from its upper left corner, in the order of reading.
using PageLayout = std::vector<Placed>;

/// Of page `number`, counted from 1, of the sheet's. Nothing overlaps and all is inside of the margins.
PageLayout layOutPage(const PrintedSheet& sheet, int number, const PageFonts& fonts);

/// What an element covers: of words their font's height.
QRectF boxOf(const Placed& placed, const PageFonts& fonts);

} // namespace quillon
