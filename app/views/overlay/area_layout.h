#pragma once

#include "area_content.h"
#include "row_arrangement.h"

#include <QRectF>

#include <cstddef>
#include <vector>

namespace quillon {

/// Inside of a row's box, left and right of what is arranged.
inline constexpr double rowInset = 6;

/// A row's place in the content.
struct RowBox {
    QRectF rect;           ///< what lights up under the pointer
    std::size_t card = 0;  ///< position in `AreaContent::cards`
    std::size_t entry = 0; ///< position in `PreparedSheet::entries`
    SubmenuInRow submenu = SubmenuInRow::hidden;
    std::size_t column = 0; ///< of the masonry or of the wide card's grid, from the leading side
    double inset = rowInset;

    /// Where its parts are arranged.
    QRectF inner() const { return rect.adjusted(inset, 0, -inset, 0); }
    bool operator==(const RowBox&) const = default;
};

/// A card's title or a submenu's caption.
struct HeadingBox {
    enum class Kind { card, submenu };
    Kind kind = Kind::card;
    QRectF rect;
    std::size_t card = 0;
    std::size_t section = 0; ///< of a submenu
    double textLeft = 0;     ///< beside the icon, if there is one

    const QString& text(const AreaContent& content) const;
    const MeasuredFont& font(const TextMeasure& measure) const;
    bool operator==(const HeadingBox&) const = default;
};

/// A hairline where a card goes on with commands of no submenu.
struct DividerBox {
    QRectF rect;
    std::size_t card = 0;

    bool operator==(const DividerBox&) const = default;
};

struct CardBox {
    QRectF rect;
    std::size_t firstRow = 0; ///< its rows are those from here up to `endRow`
    std::size_t endRow = 0;

    bool operator==(const CardBox&) const = default;
};

/// Where everything in the shortcut area stands, in logical pixels from the top of the scrolled content.
/// Boxes of one kind are in reading order: card by card, each from its top.
struct AreaLayout {
    double width = 0;
    double height = 0;
    std::vector<CardBox> cards; ///< one per `AreaContent::cards`
    std::vector<HeadingBox> headings;
    std::vector<DividerBox> dividers;
    std::vector<RowBox> rows;

    /// The pinned card across the width, below it the menus dealt into three columns of equal width.
    static AreaLayout
    of(const AreaContent& content, const PreparedSheet& sheet, const TextMeasure& measure, double width);

    /// The position in `rows` of the row at this point, or -1.
    std::ptrdiff_t rowAt(QPointF point) const;

    bool operator==(const AreaLayout&) const = default;
};

/// The size of the icon beside a card's title, in logical pixels.
int headingIconSize(const TextMeasure& measure);

} // namespace quillon
