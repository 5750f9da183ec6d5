#pragma once

#include <quillon/app/views/components/key_caps.h>
#include <quillon/app/views/components/theme.h>

#include <QFontMetricsF>
#include <QHash>
#include <QString>

namespace quillon {

/// A font whose widths are measured once per text.
class MeasuredFont {
  public:
    explicit MeasuredFont(const QFont& font) : m_font(font), m_metrics(font) {}

    const QFont& font() const { return m_font; }
    const QFontMetricsF& metrics() const { return m_metrics; }
    /// In logical pixels, rounded up.
    double width(const QString& text) const;
    /// From one line of text to the next, rounded up.
    double lineHeight() const;

  private:
    QFont m_font;
    QFontMetricsF m_metrics;
    mutable QHash<QString, double> m_widths;
};

/// The fonts and key caps of the overlay's rows, in one theme.
struct TextMeasure {
    explicit TextMeasure(const Theme& theme);

    MeasuredFont title;
    MeasuredFont heading;
    MeasuredFont caption; ///< submenu captions and badges
    MeasuredFont submenu; ///< a submenu named in a row
    MeasuredFont note;
    KeyCaps keys;
};

} // namespace quillon
