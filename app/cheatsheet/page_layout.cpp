#include "page_layout.h"

#include "caps_layout.h"
#include "cheat_sheet_texts.h"
#include "column_layout.h"
#include "page_measures.h"

#include <quillon/app/views/components/key_places.h>

namespace quillon {

namespace {

using namespace PageMeasures;

constexpr double right = width - margin;
constexpr double contentWidth = width - 2 * margin;

constexpr double belowHeader = 8;
constexpr double aboveFooter = 8;
constexpr double legendGap = 18; ///< between the count and the legend

/// Places what stands above and below the columns.
class Frame {
  public:
    Frame(const PrintedSheet& sheet, const PageFonts& fonts, PageLayout& page)
        : m_sheet(sheet), m_fonts(fonts), m_page(page) {}

    /// Returns where the header ends.
    double placeHeader() {
        double baseline = margin + m_fonts.ascent(PageFont::name);
        const QString name = m_fonts.elided(PageFont::name, m_sheet.appName, contentWidth);
        place(name, {margin, baseline}, PageFont::name, PageInk::primary);
        baseline += m_fonts.descent(PageFont::name) + m_fonts.ascent(PageFont::legend);
        const QString count = CheatSheetTexts::shortcuts(m_sheet.shortcuts);
        place(count, {margin, baseline}, PageFont::legend, PageInk::secondary);
        if (m_sheet.hasSigns)
            baseline = placeLegend(baseline, m_fonts.width(PageFont::legend, count) + legendGap);
        return baseline + m_fonts.descent(PageFont::legend) + belowHeader;
    }

    /// Returns where the footer begins.
    double placeFooter(int number) {
        const double baseline = height - margin - m_fonts.descent(PageFont::footer);
        place(CheatSheetTexts::madeWith(), {margin, baseline}, PageFont::footer, PageInk::secondary);
        const QString page = CheatSheetTexts::page(number, static_cast<int>(m_sheet.pages.size()));
        place(
            page, {right - m_fonts.width(PageFont::footer, page), baseline}, PageFont::footer,
            PageInk::secondary);
        return footerTop();
    }

    double footerTop() const {
        return height - margin - m_fonts.descent(PageFont::footer) - m_fonts.ascent(PageFont::footer);
    }

  private:
    /// The legend stands beside the count; where its keys are on this keyboard, below. Returns the last line.
    double placeLegend(double baseline, double countWidth) {
        const double legendWidth = placeAtRight(CheatSheetTexts::legend(), baseline);
        Q_ASSERT(legendWidth + countWidth <= contentWidth);
        const QString places = placesOfKeys(Vocabulary::here());
        if (places.isEmpty())
            return baseline;
        baseline += m_fonts.lineHeight(PageFont::legend);
        placeAtRight(places, baseline);
        return baseline;
    }

    double placeAtRight(const QString& text, double baseline) {
        const double textWidth = widthWithSigns(text, PageFont::legend, m_fonts);
        return placeWithSigns(
            text, {right - textWidth, baseline}, PageFont::legend, PageInk::secondary, m_fonts, m_page);
    }

    void place(const QString& words, QPointF start, PageFont font, PageInk ink) {
        if (!words.isEmpty())
            m_page.emplace_back(PlacedText{start, m_fonts.width(font, words), font, ink, words});
    }

    const PrintedSheet& m_sheet;
    const PageFonts& m_fonts;
    PageLayout& m_page;
};

/// Of words in this font, at this scale.
QRectF lineBox(QPointF start, double width, PageFont font, double scale, const PageFonts& fonts) {
    const double ascent = fonts.ascent(font) * scale;
    return {start.x(), start.y() - ascent, width, ascent + fonts.descent(font) * scale};
}

/// What each kind of element covers.
struct BoxOf {
    const PageFonts& fonts;

    QRectF operator()(const PlacedText& text) const {
        return lineBox(text.start, text.width, text.font, text.scale, fonts);
    }
    QRectF operator()(const PlacedSign& sign) const { return sign.box; }
    QRectF operator()(const PlacedCap& cap) const { return cap.box; }
    QRectF operator()(const PlacedPin& pin) const { return pin.box; }
    QRectF operator()(const PlacedRule& rule) const { return {rule.start, QSizeF(rule.width, 0)}; }
};

} // namespace

PageLayout layOutPage(const PrintedSheet& sheet, int number, const PageFonts& fonts) {
    PageLayout page;
    Frame frame(sheet, fonts, page);
    const double top = frame.placeHeader();
    const double bottom = frame.footerTop() - aboveFooter;
    double left = margin;
    for (const CheatSheet::Column& column : sheet.pages.at(static_cast<std::size_t>(number - 1))) {
        layOutColumn(column, {left, top, columnWidth, bottom - top}, sheet, fonts, page);
        left += columnWidth + columnGap;
    }
    frame.placeFooter(number);
    return page;
}

QRectF boxOf(const Placed& placed, const PageFonts& fonts) {
    return std::visit(BoxOf{fonts}, placed);
}

} // namespace quillon
