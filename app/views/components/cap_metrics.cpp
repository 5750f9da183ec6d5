#include "cap_metrics.h"

#include "key_pictograms.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr double paddingPerSize = 0.35;
constexpr double smallestWidthPerSize = 1.7;

double widestDigitOf(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

} // namespace

CapMetrics::CapMetrics(const QFont& font, double size)
    : m_font(font), m_size(size), m_widestDigit(widestDigitOf(m_font)) {}

double CapMetrics::inkWidth(const QString& cap) const {
    if (KeyPictograms::has(cap))
        return KeyPictograms::widthPerSize(cap) * m_size;
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    QString others = cap;
    const qsizetype digits = cap.size() - others.removeIf(isDigit).size();
    return m_font.horizontalAdvance(others) + static_cast<double>(digits) * m_widestDigit;
}

double CapMetrics::width(const QString& cap) const {
    return std::max(inkWidth(cap) + 2 * paddingPerSize * m_size, smallestWidthPerSize * m_size);
}

} // namespace quillon
