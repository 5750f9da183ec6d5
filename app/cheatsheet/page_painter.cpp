#include "page_painter.h"

#include "page_measures.h"

#include <quillon/app/views/components/colours.h>
#include <quillon/app/views/components/key_pictograms.h>
#include <quillon/app/views/components/palette.h>
#include <quillon/app/views/components/svg_strokes.h>

#include <QPainterPath>
#include <QPen>

#include <cmath>
#include <map>
#include <optional>
#include <tuple>
#include <vector>

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

struct PageColours {
    QColor secondary = Palette::forScheme(ColourScheme::light).secondary;
    QColor capFill = onPaper(Colours::withOpacity(Qt::black, 0.07));
    QColor capBorder = onPaper(Colours::withOpacity(Qt::black, 0.14));

    QColor of(PageInk ink) const {
        switch (ink) {
        case PageInk::primary: return Qt::black;
        case PageInk::secondary: return secondary;
        case PageInk::note: return noteGrey;
        }
        Q_UNREACHABLE();
    }
};

/// Places are told in whole units, with which the page is drawn: every further digit only makes documents
/// larger.
QPointF inUnits(QPointF point) {
    return {std::round(point.x() * unit), std::round(point.y() * unit)};
}

QRectF inUnits(const QRectF& box) {
    return {inUnits(box.topLeft()), inUnits(box.bottomRight())};
}

QPointF whole(const QPainterPath::Element& element) {
    return {std::round(element.x), std::round(element.y)};
}

/// What is to be filled, in whole units, of which a drawing is some two hundred high, and without lines that
/// go nowhere or back to where filling ends by itself.
QPainterPath shortened(const QPainterPath& path) {
    QPainterPath shorter;
    shorter.setFillRule(path.fillRule());
    QPointF start;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPointF point = whole(path.elementAt(i));
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            start = point;
            shorter.moveTo(point);
            break;
        case QPainterPath::LineToElement: {
            const bool isLast = i + 1 == path.elementCount() || path.elementAt(i + 1).isMoveTo();
            if (point != shorter.currentPosition() && !(isLast && point == start))
                shorter.lineTo(point);
            break;
        }
        case QPainterPath::CurveToElement:
            shorter.cubicTo(point, whole(path.elementAt(i + 1)), whole(path.elementAt(i + 2)));
            i += 2;
            break;
        case QPainterPath::CurveToDataElement: Q_UNREACHABLE();
        }
    }
    return shorter;
}

/// A pen that never comes down: its first dash begins farther along than any drawing goes. Documents tell
/// what is filled in coordinates of its own, in which the same drawing is the same numbers everywhere, only
/// where a pen is at hand.
QPen raisedPen(const QColor& colour) {
    constexpr double farther = 1e5;
    QPen pen(colour, 1, Qt::SolidLine, Qt::FlatCap);
    pen.setDashPattern({1, farther});
    pen.setDashOffset(2);
    return pen;
}

/// A drawing, from the origin of a place of its own.
struct Drawing {
    QPointF at; ///< in whole units
    QPainterPath path;
};

/// The drawings of signs, each made once.
class SignPaths {
  public:
    const QPainterPath& of(const PlacedSign& sign) {
        const auto [path, isNew] = m_paths.try_emplace({sign.sign, sign.font, sign.scale});
        if (isNew) {
            const double size = PageFonts::size(sign.font) * unit;
            const auto fit = QTransform::fromScale(sign.scale, sign.scale);
            path->second = shortened(fit.map(KeyPictograms::drawing(sign.sign, size).path));
        }
        return path->second;
    }

  private:
    std::map<std::tuple<QString, PageFont, double>, QPainterPath> m_paths;
};

/// What of a page is drawn and not written.
class Drawings {
  public:
    void operator()(const PlacedText&) {}

    void operator()(const PlacedSign& sign) {
        m_signs[sign.ink].push_back({inUnits(sign.box.topLeft()), m_signPaths.of(sign)});
    }

    void operator()(const PlacedCap& cap) {
        const QRectF box = inUnits(cap.box);
        const double inset = borderWidth * unit / 2;
        QPainterPath path;
        path.addRoundedRect(
            QRectF(QPointF(), box.size()).adjusted(inset, inset, -inset, -inset),
            PageMeasures::capRadius * unit, PageMeasures::capRadius * unit);
        m_caps.push_back({box.topLeft(), path});
    }

    void operator()(const PlacedPin& pin) {
        static const QPainterPath path = pinPath();
        const QRectF box = inUnits(pin.box);
        const auto fit = QTransform::fromScale(box.width() / pinUnits, box.height() / pinUnits);
        m_signs[PageInk::secondary].push_back({box.topLeft(), shortened(fit.map(path))});
    }

    void operator()(const PlacedRule& rule) {
        m_rules.emplace_back(inUnits(rule.start), inUnits(rule.start + QPointF(rule.width, 0)));
    }

    void draw(QPainter& painter, const PageColours& colours) const {
        painter.setPen(QPen(colours.capBorder, ruleWidth * unit));
        painter.drawLines(m_rules);
        painter.setPen(QPen(colours.capBorder, borderWidth * unit));
        painter.setBrush(colours.capFill);
        drawEach(painter, m_caps);
        for (const auto& [ink, drawings] : m_signs) {
            painter.setPen(raisedPen(colours.of(ink)));
            painter.setBrush(colours.of(ink));
            drawEach(painter, drawings);
        }
        painter.setBrush(Qt::NoBrush);
    }

  private:
    /// Each in coordinates of its own.
    static void drawEach(QPainter& painter, const std::vector<Drawing>& drawings) {
        const QTransform page = painter.transform();
        for (const Drawing& drawing : drawings) {
            painter.setTransform(QTransform::fromTranslate(drawing.at.x(), drawing.at.y()) * page);
            painter.drawPath(drawing.path);
        }
        painter.setTransform(page);
    }

    SignPaths m_signPaths;
    std::vector<Drawing> m_caps;
    std::map<PageInk, std::vector<Drawing>> m_signs;
    QList<QLineF> m_rules;
};

/// Writes the words, and signs without ink where they are drawn: readers that search find those. Signs that
/// follow each other are written as one.
class Writer {
  public:
    Writer(QPainter& painter, const PageFonts& fonts, const PageColours& colours)
        : m_painter(painter), m_fonts(fonts), m_colours(colours) {}

    void operator()(const PlacedText& text) {
        finish();
        write(text.text, text.start, text.font, {text.scale, text.scale}, m_colours.of(text.ink));
    }

    void operator()(const PlacedSign& sign) {
        if (m_signs && follows(sign, *m_signs)) {
            m_signs->sign += sign.sign;
            m_signs->width += sign.width;
            return;
        }
        finish();
        m_signs = sign;
    }

    void operator()(const PlacedCap&) {}
    void operator()(const PlacedPin&) {}
    void operator()(const PlacedRule&) {}

    /// Writes the signs that wait for others to follow.
    void finish() {
        if (!m_signs)
            return;
        const double natural = m_fonts.width(m_signs->font, m_signs->sign);
        if (natural > 0)
            write(
                m_signs->sign, m_signs->start, m_signs->font, {m_signs->width / natural, m_signs->scale},
                Qt::transparent);
        m_signs.reset();
    }

  private:
    static bool follows(const PlacedSign& sign, const PlacedSign& before) {
        const QPointF end = before.start + QPointF(before.width, 0);
        return sign.font == before.font && sign.scale == before.scale
               && (sign.start - end).manhattanLength() < 1 / unit;
    }

    void write(const QString& text, QPointF start, PageFont font, QPointF scale, const QColor& colour) {
        m_painter.setFont(m_fonts.font(font));
        m_painter.setPen(colour);
        if (scale == QPointF(1, 1)) {
            m_painter.drawText(inUnits(start), text);
            return;
        }
        m_painter.save();
        m_painter.translate(inUnits(start));
        m_painter.scale(scale.x(), scale.y());
        m_painter.drawText(QPointF(), text);
        m_painter.restore();
    }

    QPainter& m_painter;
    const PageFonts& m_fonts;
    const PageColours& m_colours;
    std::optional<PlacedSign> m_signs;
};

} // namespace

void paintPage(QPainter& painter, const PageLayout& page, const PageFonts& fonts) {
    const PageColours colours;
    Drawings drawings;
    for (const Placed& placed : page)
        std::visit(drawings, placed);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(1 / unit, 1 / unit);
    drawings.draw(painter, colours);
    Writer writer(painter, fonts, colours);
    for (const Placed& placed : page)
        std::visit(writer, placed);
    writer.finish();
    painter.restore();
}

} // namespace quillon
