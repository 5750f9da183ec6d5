#pragma once

#include "area_layout.h"

#include <quillon/app/views/components/nine_patch.h>
#include <quillon/app/views/components/theme.h>

#include <QPainter>

#include <cstddef>
#include <optional>

namespace quillon {

/// The rows that stand out.
struct RowHighlights {
    std::optional<std::size_t> hovered; ///< under the pointer
    std::optional<std::size_t> focused; ///< has the keyboard
};

/// Draws the shortcut area, no more of it than is visible.
class AreaPainter {
  public:
    /// All of them outlive the painter. `card` is the picture of an empty card.
    AreaPainter(
        const Theme& theme, const TextMeasure& measure, const NinePatch& card, const AreaContent& content,
        const PreparedSheet& sheet, const AreaLayout& layout)
        : m_theme(theme), m_measure(measure), m_card(card), m_content(content), m_sheet(sheet),
          m_layout(layout) {}

    static NinePatch cardPicture(const Palette& palette, double ratio);

    /// `visible` in the layout's coordinates, in which `painter` draws as well.
    void paint(QPainter& painter, const QRectF& visible, const RowHighlights& highlights) const;

  private:
    void paintCards(QPainter& painter, const QRectF& visible) const;
    void paintHeading(QPainter& painter, const HeadingBox& heading) const;
    void paintRow(QPainter& painter, const RowBox& row) const;
    void paintRowParts(QPainter& painter, const PreparedEntry& entry, const RowArrangement& parts) const;
    void paintHighlights(QPainter& painter, const RowHighlights& highlights) const;
    void paintText(
        QPainter& painter, const PlacedText& text, const MeasuredFont& font, const QColor& colour,
        double padding = 0) const;

    const Theme& m_theme;
    const TextMeasure& m_measure;
    const NinePatch& m_card;
    const AreaContent& m_content;
    const PreparedSheet& m_sheet;
    const AreaLayout& m_layout;
};

} // namespace quillon
