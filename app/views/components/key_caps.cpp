#include "key_caps.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

constexpr double gap = 3;
constexpr double cornerRadius = 5;
constexpr double borderWidth = 0.5;
constexpr double paddingPerSize = 0.35;
constexpr double smallestWidthPerSize = 1.7;
/// A cap with one letter is square.
constexpr double heightPerSize = 1.7;
/// Symbols are drawn a little larger than letters to look of one size with them.
constexpr double symbolScale = 1.16;

double widestDigitOf(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

/// Whether the cap shows one of the key symbols (⌘, ⌫, ↩ …) instead of a letter or word.
bool isSymbol(const QString& cap) {
    return cap.size() == 1 && cap.at(0).unicode() >= 0x2190 && cap.at(0).unicode() <= 0x23ff;
}

QFont symbolFont(const QFont& font, double size) {
    QFont symbols = atSize(font, size);
    symbols.setFamilies({QStringLiteral("DejaVu Sans")});
    return symbols;
}

} // namespace

QStringList capTexts(const Shortcut& shortcut) {
    static constexpr std::array order{
        Modifiers::control, Modifiers::option, Modifiers::shift, Modifiers::command};
    QStringList caps;
    for (const Modifiers modifier : order) {
        if (shortcut.modifiers.contains(modifier))
            caps.append(text(modifier.glyphs()));
    }
    caps.append(text(shortcut.key.glyph()));
    return caps;
}

KeyCaps::KeyCaps(const Theme& theme, double size, CapEmphasis emphasis)
    : m_palette(theme.palette), m_font(semibold(atSize(theme.styles.body, size))), m_metrics(m_font),
      m_symbolFont(symbolFont(m_font, size * symbolScale)), m_symbolMetrics(m_symbolFont), m_size(size),
      m_emphasis(emphasis), m_height(std::ceil(std::max(heightPerSize * size, m_metrics.height()))),
      m_baseline(std::round((m_height - m_metrics.capHeight()) / 2 + m_metrics.capHeight())),
      m_widestDigit(widestDigitOf(m_metrics)) {}

double KeyCaps::textWidth(const QString& cap) const {
    if (isSymbol(cap))
        return m_symbolMetrics.tightBoundingRect(cap).width();
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    QString others = cap;
    const qsizetype digits = cap.size() - others.removeIf(isDigit).size();
    return m_metrics.horizontalAdvance(others) + static_cast<double>(digits) * m_widestDigit;
}

double KeyCaps::capWidth(const QString& cap) const {
    return std::ceil(std::max(textWidth(cap) + 2 * paddingPerSize * m_size, smallestWidthPerSize * m_size));
}

double KeyCaps::width(const Shortcut& shortcut) const {
    if (const auto known = m_widths.find(shortcut); known != m_widths.end())
        return known->second;
    const QStringList caps = capTexts(shortcut);
    double width = static_cast<double>(caps.size() - 1) * gap;
    for (const QString& cap : caps)
        width += capWidth(cap);
    m_widths.emplace(shortcut, width);
    return width;
}

QPixmap KeyCaps::drawCap(const QString& cap, double ratio) const {
    const QSizeF size(capWidth(cap), m_height);
    QPixmap pixmap((size * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool prominent = m_emphasis == CapEmphasis::prominent;
    painter.setBrush(m_palette.primaryAt(prominent ? 0.16 : 0.07));
    painter.setPen(QPen(m_palette.primaryAt(0.14), borderWidth));
    const double inset = borderWidth / 2;
    painter.drawRoundedRect(
        QRectF(QPointF(0, 0), size).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    drawText(painter, cap, size.width());
    return pixmap;
}

void KeyCaps::drawText(QPainter& painter, const QString& cap, double width) const {
    painter.setPen(m_palette.primary);
    if (isSymbol(cap)) {
        // Symbols have no common line to stand on: each is centred by what is seen of it.
        const QRectF ink = m_symbolMetrics.tightBoundingRect(cap);
        painter.setFont(m_symbolFont);
        painter.drawText(QPointF(width / 2, m_height / 2) - ink.center(), cap);
    } else {
        painter.setFont(m_font);
        painter.drawText(QPointF((width - m_metrics.horizontalAdvance(cap)) / 2, m_baseline), cap);
    }
}

const QPixmap& KeyCaps::capPixmap(const QString& cap, double ratio) const {
    if (ratio != m_pixmapRatio) {
        m_pixmaps.clear();
        m_pixmapRatio = ratio;
    }
    auto known = m_pixmaps.find(cap);
    if (known == m_pixmaps.end())
        known = m_pixmaps.insert(cap, drawCap(cap, ratio));
    return *known;
}

void KeyCaps::paint(QPainter& painter, QPointF topLeft, const Shortcut& shortcut) const {
    const double ratio = painter.device()->devicePixelRatioF();
    double x = std::round(topLeft.x() * ratio) / ratio;
    const double y = std::round(topLeft.y() * ratio) / ratio;
    for (const QString& cap : capTexts(shortcut)) {
        const QPixmap& pixmap = capPixmap(cap, ratio);
        painter.drawPixmap(QPointF(x, y), pixmap);
        x += pixmap.deviceIndependentSize().width() + gap;
    }
}

} // namespace quillon
