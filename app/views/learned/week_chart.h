#pragma once

#include "learned_summary.h"

#include <quillon/app/views/components/theme.h>

#include <QPainter>
#include <QRect>

#include <vector>

namespace quillon {

/// The weeks as pairs of bars, typed beside clicked, with a legend over them and days under some of them.
class WeekChart {
  public:
    explicit WeekChart(const Theme& theme);

    /// What it takes, in logical pixels.
    int height() const;
    /// Paints it into a place of that height; the earliest week stands where reading begins.
    void paint(QPainter& painter, const QRect& place, const std::vector<WeekBar>& weeks) const;

  private:
    void paintLegend(QPainter& painter, const QRect& line) const;
    void paintBars(QPainter& painter, const QRect& box, const std::vector<WeekBar>& weeks) const;
    void paintLabels(QPainter& painter, const QRect& line, const std::vector<WeekBar>& weeks) const;

    QFont m_font;
    QColor m_typed;
    QColor m_clicked;
    QColor m_text;
    QColor m_line;
};

} // namespace quillon
