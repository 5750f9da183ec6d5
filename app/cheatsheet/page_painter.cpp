#include "page_painter.h"

#include "page_measures.h"

#include <quillon/app/views/components/colours.h>
#include <quillon/app/views/components/key_pictograms.h>
#include <quillon/app/views/components/palette.h>
#include <quillon/app/views/components/svg_strokes.h>

#include <QPainterPath>
#include <QPen>

#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr double unit = PageFonts::unitsPerPoint;
constexpr double borderWidth = 0.5;
constexpr double ruleWidth = 0.5;
/// Ink of 75 % strength on white paper.
constexpr QColor noteGrey(0x40, 0x40, 0x40);
constexpr int pinUnits = 24;

QPainterPath pinPath() {
    QPainterPath path;
    for (const SvgStroke& stroke : svgStrokes(u":/quillon/symbols/pin.fill.svg"_s, pinUnits))
        path.addPath(stroke.path);
    return path;
}

/// Paper knows no transparency: what it would look like on white.
QColor onPaper(const QColor& colour) {
    return Colours::over(colour, Qt::white);
}

/// Places are told in whole units: every further digit only makes documents larger.
double neat(double places) {
    return std::round(places * unit) / unit;
}

QPointF neat(QPointF point) {
    return {neat(point.x()), neat(point.y())};
}

QRectF neat(const QRectF& box) {
    return {neat(box.topLeft()), neat(box.bottomRight())};
}

/// The same in whole units, of which a drawing is some two hundred high.
QPainterPath inWholeUnits(QPainterPath path) {
    for (int i = 0; i < path.elementCount(); ++i)
        path.setElementPositionAt(i, std::round(path.elementAt(i).x), std::round(path.elementAt(i).y));
    return path;
}

/// Draws each kind of element.
class ElementPainter {
  public:
    ElementPainter(QPainter& painter, const PageFonts& fonts) : m_painter(painter), m_fonts(fonts) {}

    void operator()(const PlacedText& text) {
        write(text.text, text.start, text.font, {text.scale, text.scale}, colourOf(text.ink));
    }

    void operator()(const PlacedSign& sign) {
        const double size = PageFonts::size(sign.font) * unit;
        const KeyPictograms::Drawing drawing = KeyPictograms::drawing(sign.sign, size);
        m_painter.save();
        m_painter.translate(neat(sign.box.topLeft()));
        m_painter.scale(sign.scale / unit, sign.scale / unit);
        m_painter.fillPath(inWholeUnits(drawing.path), colourOf(sign.ink));
        m_painter.restore();
        const double natural = m_fonts.width(sign.font, sign.sign);
        if (natural > 0)
            write(sign.sign, sign.start, sign.font, {sign.width / natural, sign.scale}, Qt::transparent);
    }

    void operator()(const PlacedCap& cap) {
        m_painter.setPen(QPen(m_capBorder, borderWidth));
        m_painter.setBrush(m_capFill);
        const double inset = borderWidth / 2;
        m_painter.drawRoundedRect(
            neat(cap.box).adjusted(inset, inset, -inset, -inset), PageMeasures::capRadius,
            PageMeasures::capRadius);
    }

    void operator()(const PlacedPin& pin) {
        static const QPainterPath path = pinPath();
        m_painter.save();
        m_painter.translate(pin.box.topLeft());
        m_painter.scale(pin.box.width() / pinUnits, pin.box.height() / pinUnits);
        m_painter.fillPath(path, m_palette.secondary);
        m_painter.restore();
    }

    void operator()(const PlacedRule& rule) {
        m_painter.setPen(QPen(m_capBorder, ruleWidth));
        m_painter.drawLine(rule.start, rule.start + QPointF(rule.width, 0));
    }

  private:
    QColor colourOf(PageInk ink) const {
        switch (ink) {
        case PageInk::primary: return Qt::black;
        case PageInk::secondary: return m_palette.secondary;
        case PageInk::note: return noteGrey;
        }
        Q_UNREACHABLE();
    }

    void write(const QString& text, QPointF start, PageFont font, QPointF scale, const QColor& colour) {
        m_painter.save();
        m_painter.translate(neat(start));
        m_painter.scale(scale.x() / unit, scale.y() / unit);
        m_painter.setFont(m_fonts.font(font));
        m_painter.setPen(colour);
        m_painter.drawText(QPointF(), text);
        m_painter.restore();
    }

    QPainter& m_painter;
    const PageFonts& m_fonts;
    const Palette m_palette = Palette::forScheme(ColourScheme::light);
    const QColor m_capFill = onPaper(Colours::withOpacity(Qt::black, 0.07));
    const QColor m_capBorder = onPaper(Colours::withOpacity(Qt::black, 0.14));
};

} // namespace

void paintPage(QPainter& painter, const PageLayout& page, const PageFonts& fonts) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    ElementPainter element(painter, fonts);
    for (const Placed& placed : page)
        std::visit(element, placed);
    painter.restore();
}

} // namespace quillon
