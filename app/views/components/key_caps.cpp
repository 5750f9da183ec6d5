#include "key_caps.h"

#include "device_pixels.h"
#include "ink.h"
#include "key_pictograms.h"
#include "text.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double cornerRadius = 5;
constexpr double borderWidth = 0.5;

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
      m_metrics(m_font, size), m_size(size), m_emphasis(emphasis),
      m_height(std::ceil(std::max(CapMetrics::heightPerSize * size, m_metrics.font().capHeight()))),
      m_baseline(std::round((m_height + m_metrics.font().capHeight()) / 2)) {}

double KeyCaps::capWidth(const QString& cap) const {
    return std::ceil(m_metrics.width(cap));
}

double KeyCaps::width(const Shortcut& shortcut) const {
    if (const auto known = m_widths.find(shortcut); known != m_widths.end())
        return known->second;
    const QStringList caps = capTexts(shortcut, m_names.get());
    double width = static_cast<double>(caps.size() - 1) * CapMetrics::gap;
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
        at.rx() += capWidth(cap) + CapMetrics::gap;
    }
}

} // namespace quillon
