#include "text_measure.h"

#include <cmath>

namespace quillon {

namespace {

/// Texts come from other applications and change; this many are more than any screen shows.
constexpr qsizetype mostKept = 20'000;

} // namespace

double MeasuredFont::width(const QString& text) const {
    if (const auto known = m_widths.constFind(text); known != m_widths.constEnd())
        return *known;
    if (m_widths.size() >= mostKept)
        m_widths.clear();
    return *m_widths.insert(text, std::ceil(m_metrics.horizontalAdvance(text)));
}

double MeasuredFont::lineHeight() const {
    return std::ceil(m_metrics.height());
}

TextMeasure::TextMeasure(const Theme& theme)
    : title(theme.styles.body), heading(theme.styles.headline), caption(semibold(theme.styles.caption)),
      submenu(theme.styles.caption), note(italic(theme.styles.caption)), keys(theme, theme.keySize()) {}

} // namespace quillon
