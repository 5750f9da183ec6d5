#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>

namespace quillon {

/// How much room key caps take, in the units of their font's pixel size.
class CapMetrics {
  public:
    static constexpr double gap = 3; ///< between two caps, in logical pixels or points
    /// Lower than wide, so that lines of text with caps in them stand hardly further apart than others.
    static constexpr double heightPerSize = 1.55;

    /// `size` is the font's pixel size.
    CapMetrics(const QFont& font, double size);

    /// Of what a cap shows. Digits are all of one width.
    double inkWidth(const QString& cap) const;
    /// Of a whole cap.
    double width(const QString& cap) const;
    const QFontMetricsF& font() const { return m_font; }

  private:
    QFontMetricsF m_font;
    double m_size;
    double m_widestDigit;
};

} // namespace quillon
