#pragma once

#include "library_rows.h"
#include "row_button.h"

#include <quillon/app/views/components/key_caps.h>
#include <quillon/app/views/components/theme.h>
#include <quillon/app/views/learned/week_chart.h>

#include <QRect>

#include <array>
#include <optional>
#include <vector>

namespace quillon {

/// Where the parts of a command's row stand, from left to right. Nothing overlaps.
struct CommandPlaces {
    QRect title;
    QRect note;   ///< under the title; empty for none
    QRect counts; ///< empty for none
    std::array<QRect, allRowButtons.size()> buttons;
    QRect keys;
    double keysScale = 1; ///< below 1 where the caps would be wider than their column

    const QRect& button(RowButton button) const { return buttons[positionOf(button)]; }
    /// The one at this point.
    std::optional<RowButton> buttonAt(const QPoint& point) const;
};

/// Measures the rows of an application, in one theme: the same parts of all commands stand in columns.
class LibraryRowLayout {
  public:
    explicit LibraryRowLayout(const Theme& theme);

    /// Makes the column of keys as wide as the widest of these rows' keys.
    void makeRoomForKeys(const std::vector<LibraryRow>& rows);

    /// In a list of this width.
    int height(const LibraryRow& row, int width) const;
    /// What a row's background covers; without the room that keeps it apart from the row before.
    static QRect groundOf(const LibraryRow& row, const QRect& place);
    /// A row without the room around it; `row` as it lies in the list.
    QRect boxOf(const QRect& row) const;
    CommandPlaces placesOf(const LibraryRow& row, const QRect& box) const;

    const QFont& noteFont() const { return m_noteFont; }
    const QFont& countsFont(const LibraryRow& row) const {
        return row.leansOnClicks ? m_boldCountsFont : m_countsFont;
    }
    const QFont& remarkFont() const { return m_remarkFont; }
    const KeyCaps& keys() const { return m_keys; }
    const WeekChart& chart() const { return m_chart; }
    int symbolSize() const { return m_symbolSize; }

    /// Between parts that stand side by side.
    static constexpr int gap = 12;

  private:
    QFont m_countsFont;
    QFont m_boldCountsFont;
    QFont m_noteFont;
    QFont m_remarkFont;
    KeyCaps m_keys;
    WeekChart m_chart;
    int m_symbolSize;
    int m_statisticsHeight;
    int m_totalsHeight;
    int m_headingHeight;
    int m_lineHeight; ///< of a command, without its note
    int m_noteHeight;
    int m_widestKeys = 0;
};

} // namespace quillon
