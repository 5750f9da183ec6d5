#include "page_fonts.h"

#include <QTextLayout>
#include <QTextOption>

#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

struct Style {
    double size; ///< in points
    QFont::Weight weight = QFont::Normal;
    bool isItalic = false;
};

constexpr Style styleOf(PageFont which) {
    switch (which) {
    case PageFont::name: return {20, QFont::Bold};
    case PageFont::legend: return {9};
    case PageFont::heading: return {10.5, QFont::Bold};
    case PageFont::title: return {8};
    case PageFont::cap: return {9.5, QFont::DemiBold};
    case PageFont::note: return {8.5, QFont::Normal, true};
    case PageFont::footer: return {8};
    }
    Q_UNREACHABLE();
}

/// More than any line of a page holds; keeps what is measured short, whatever other programs hand over.
constexpr qsizetype longestLine = 1000;

/// Letters that join into one sign are lost to searches: any space between them keeps them apart.
constexpr double leastSpacing = 1.0 / 64;

QFont fontOf(PageFont which) {
    const Style style = styleOf(which);
    QFont font;
    font.setFamilies({u"Liberation Sans"_s, u"Noto Sans"_s, u"DejaVu Sans"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(static_cast<int>(std::lround(style.size * PageFonts::unitsPerPoint)));
    font.setWeight(style.weight);
    font.setItalic(style.isItalic);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, leastSpacing);
    return font;
}

QString beginning(const QString& text, qsizetype most) {
    if (text.size() <= most)
        return text;
    return text.left(text.at(most - 1).isHighSurrogate() ? most - 1 : most);
}

} // namespace

PageFonts::PageFonts()
    : m_fonts([] {
          const auto made = [](PageFont which) { return One{fontOf(which), QFontMetricsF(fontOf(which))}; };
          return std::array{made(PageFont::name),  made(PageFont::legend), made(PageFont::heading),
                            made(PageFont::title), made(PageFont::cap),    made(PageFont::note),
                            made(PageFont::footer)};
      }()),
      m_caps(font(PageFont::cap), size(PageFont::cap) * unitsPerPoint) {}

double PageFonts::size(PageFont which) {
    return styleOf(which).size;
}

double PageFonts::width(PageFont which, const QString& text) const {
    const auto [known, isNew] = one(which).widths.try_emplace(text);
    if (isNew)
        known->second = one(which).metrics.horizontalAdvance(text) / unitsPerPoint;
    return known->second;
}

double PageFonts::capWidth(const QString& cap) const {
    const auto [known, isNew] = m_capWidths.try_emplace(cap);
    if (isNew)
        known->second = m_caps.width(cap) / unitsPerPoint;
    return known->second;
}

double PageFonts::capHeight(PageFont which) const {
    return one(which).metrics.capHeight() / unitsPerPoint;
}

double PageFonts::ascent(PageFont which) const {
    return one(which).metrics.ascent() / unitsPerPoint;
}

double PageFonts::descent(PageFont which) const {
    return one(which).metrics.descent() / unitsPerPoint;
}

double PageFonts::lineHeight(PageFont which) const {
    return one(which).metrics.lineSpacing() / unitsPerPoint;
}

QString PageFonts::elided(PageFont which, const QString& text, double room) const {
    if (room <= 0)
        return {};
    const QString looked = beginning(text, longestLine);
    if (looked.size() == text.size() && width(which, text) <= room)
        return text;
    const QString shortened = one(which).metrics.elidedText(looked, Qt::ElideRight, room * unitsPerPoint);
    return width(which, shortened) <= room ? shortened : QString();
}

QStringList PageFonts::wrapped(PageFont which, const QString& text, double room, int most) const {
    const QString looked = beginning(text, most * longestLine);
    QTextLayout layout(looked, font(which));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room * unitsPerPoint);
        const qsizetype end = line.textStart() + line.textLength();
        const bool isCut = lines.size() + 1 == most && end < looked.size();
        lines.append(
            isCut ? elided(which, looked.mid(line.textStart()), room)
                  : looked.mid(line.textStart(), line.textLength()).trimmed());
        if (lines.size() == most)
            break;
    }
    layout.endLayout();
    return lines;
}

} // namespace quillon
