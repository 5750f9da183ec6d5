#pragma once

#include "placed_text.h"
#include "text_measure.h"

#include <QString>

#include <vector>

namespace quillon {

/// Places the parts of a row one after another: in the current line as long as they fit, then in new lines.
class RowFlow {
  public:
    struct Line {
        double right = 0;    ///< where the line's room ends
        double baseline = 0; ///< from the row's top
        double bottom = 0;
    };

    /// Begins in `first`; further lines are `width` wide.
    RowFlow(Line first, double width) : m_line(first), m_width(width) {}

    double baseline() const { return m_line.baseline; }
    double bottom() const { return m_line.bottom; }

    /// Whether something `width` wide still fits in the current line.
    bool fits(double width) const { return start() + width <= m_line.right; }
    /// Takes room in the current line and returns its left edge.
    double take(double width);
    /// A line whose text stands `ascent` below its top, and which leaves `reserved` free at its end.
    void newLine(double ascent, double height, double reserved = 0);

    /// Places one line of text with `padding` on both sides; elided when it is wider than a whole line.
    PlacedText placeText(const QString& text, const MeasuredFont& font, double padding = 0);
    /// Places text that may take several lines, from the current line on. Leaves `reserved` free in every
    /// line. Past `mostLines` it is elided.
    std::vector<PlacedText>
    placeParagraph(const QString& text, const MeasuredFont& font, int mostLines, double reserved = 0);

  private:
    double start() const { return m_x > 0 ? m_x + partGap : 0; }

    Line m_line;
    double m_width;
    double m_x = 0;
};

} // namespace quillon
