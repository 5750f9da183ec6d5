#pragma once

#include "placed_text.h"
#include "text_measure.h"

#include <quillon/app/views/sheet/prepared_sheet.h>

#include <QRectF>

#include <optional>
#include <vector>

namespace quillon {

/// Whether a row names the submenu that its command sits in.
enum class SubmenuInRow { hidden, shown };

/// Where the parts of a row stand, from its top left corner, in logical pixels. Nothing overlaps and nothing
/// leaves the width that it was arranged for.
struct RowArrangement {
    double height = 0;
    std::vector<PlacedText> title; ///< one per line
    std::optional<PlacedText> submenu;
    std::optional<QRectF> pin;
    std::optional<PlacedText> badge; ///< its rect is the pill around the text
    std::vector<PlacedText> note;    ///< one per line
    QRectF keys;
    double keysScale = 1; ///< below 1 where the caps would be wider than the row

    /// Whether part of a text had to be left out.
    bool isElided() const;
    bool operator==(const RowArrangement&) const = default;
};

/// Arranges rows of one width.
class RowArranger {
  public:
    /// `measure` outlives this.
    RowArranger(const TextMeasure& measure, double width);

    /// One line where everything fits: title, submenu, pin, badge, note, and the keys at the trailing side.
    /// A title that does not fit beside the keys goes on below, and so do the other parts. Where the keys
    /// would leave the title too little room they stand in the line below it. Only a title or note of very
    /// many lines ends in an ellipsis.
    RowArrangement arrange(const PreparedEntry& entry, SubmenuInRow submenu) const;

    /// Exactly the height of `arrange`, without measuring text where that cannot matter.
    double height(const PreparedEntry& entry, SubmenuInRow submenu) const;

    /// The height of a row of one line.
    double lineHeight() const { return m_lineHeight; }

    /// Left and right of a badge's text.
    static constexpr double badgePadding = 6;

  private:
    double pinRoom(const PreparedEntry& entry) const;
    double roomBesideKeys(const PreparedEntry& entry) const;
    bool keysGoBelow(const PreparedEntry& entry) const;

    const TextMeasure& m_measure;
    double m_width;
    double m_baseline;
    double m_lineHeight;
};

} // namespace quillon
