#include "key_caps.h"

#include "device_pixels.h"
#include "ink.h"
#include "key_pictograms.h"
#include "text.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double gap = 3;
constexpr double cornerRadius = 5;
constexpr double borderWidth = 0.5;
constexpr double paddingPerSize = 0.35;
constexpr double smallestWidthPerSize = 1.7;
/// Lower than wide, so that lines of text with caps in them stand hardly further apart than others.
constexpr double heightPerSize = 1.55;

double widestDigitOf(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

/// Where a picture begins so that the ink in it, from `begin` to `end`, is in the middle of `room` pixels.
int middled(double room, double begin, double end) {
    return static_cast<int>(std::lround((room - begin - end) / 2));
}

} // namespace

QStringList capTexts(const Shortcut& shortcut, const KeyNames* names) {
    QStringList caps;
    for (const std::string& cap : capsOf(shortcut, names))
        caps.append(text(cap));
    return caps;
}

KeyCaps::KeyCaps(const Theme& theme, double size, CapEmphasis emphasis)
    : m_palette(theme.palette), m_names(theme.keyNames), m_font(semibold(atSize(theme.styles.body, size))),
      m_metrics(m_font), m_size(size), m_emphasis(emphasis),
      m_height(std::ceil(std::max(heightPerSize * size, m_metrics.capHeight()))),
      m_baseline(std::round((m_height + m_metrics.capHeight()) / 2)),
      m_widestDigit(widestDigitOf(m_metrics)) {}

double KeyCaps::inkWidth(const QString& cap) const {
    if (KeyPictograms::has(cap))
        return KeyPictograms::widthPerSize(cap) * m_size;
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    QString others = cap;
    const qsizetype digits = cap.size() - others.removeIf(isDigit).size();
    return m_metrics.horizontalAdvance(others) + static_cast<double>(digits) * m_widestDigit;
}

double KeyCaps::capWidth(const QString& cap) const {
    return std::ceil(std::max(inkWidth(cap) + 2 * paddingPerSize * m_size, smallestWidthPerSize * m_size));
}

double KeyCaps::width(const Shortcut& shortcut) const {
    if (const auto known = m_widths.find(shortcut); known != m_widths.end())
        return known->second;
    const QStringList caps = capTexts(shortcut, m_names.get());
    double width = static_cast<double>(caps.size() - 1) * gap;
    for (const QString& cap : caps)
        width += capWidth(cap);
    m_widths.emplace(shortcut, width);
    return width;
}

QPixmap KeyCaps::drawCap(const QString& cap, double ratio) const {
    const QSize size = (QSizeF(capWidth(cap), m_height) * ratio).toSize();
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool prominent = m_emphasis == CapEmphasis::prominent;
    const double border = borderWidth * ratio;
    const double radius = cornerRadius * ratio;
    painter.setBrush(m_palette.primaryAt(prominent ? 0.16 : 0.07));
    painter.setPen(QPen(m_palette.primaryAt(0.14), border));
    const double inset = border / 2;
    painter.drawRoundedRect(QRectF(pixmap.rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
    drawInk(painter, cap, size, ratio);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

Ink KeyCaps::inkOf(const QString& cap, double ratio) const {
    if (!KeyPictograms::has(cap))
        return Ink::ofText(cap, m_font, m_palette.primary, ratio);
    const KeyPictograms::Drawing drawing = KeyPictograms::drawing(cap, m_size * ratio);
    return Ink::ofPath(drawing.path, drawing.size, m_palette.primary);
}

void KeyCaps::drawInk(QPainter& painter, const QString& cap, QSize room, double ratio) const {
    const Ink ink = inkOf(cap, ratio);
    const bool isOnLine = !KeyPictograms::has(cap) && standsOnLine(cap);
    // Of what stands on the line, capitals are in the middle.
    const QRectF height = isOnLine ? inkOf(QStringLiteral("H"), ratio).bounds : ink.bounds;
    painter.drawImage(
        QPoint(
            middled(room.width(), ink.bounds.left(), ink.bounds.right()),
            middled(room.height(), height.top(), height.bottom())),
        ink.image);
}

double KeyCaps::baseline(double ratio) const {
    const QRectF capital = inkOf(QStringLiteral("H"), ratio).bounds;
    return (middled(std::round(m_height * ratio), capital.top(), capital.bottom()) + capital.bottom())
           / ratio;
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
    QPointF at = topLeft;
    for (const QString& cap : capTexts(shortcut, m_names.get())) {
        painter.drawPixmap(onDevicePixel(painter, at), capPixmap(cap, ratio));
        at.rx() += capWidth(cap) + gap;
    }
}

} // namespace quillon
