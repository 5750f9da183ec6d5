#include "area_layout.h"

#include "masonry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

constexpr double cardGap = 12;
constexpr double cardHorizontalPadding = 8;
constexpr double cardTop = 10;
constexpr double cardBottom = 8;
constexpr double titleGap = 4;
constexpr double captionTop = 7;
constexpr double captionBottom = 1;
constexpr double dividerMargin = 5;
constexpr double dividerHeight = 1;
constexpr std::size_t wideColumns = 3;
constexpr double wideColumnGap = 18;
static_assert(wideColumns == Masonry::overlayColumns, "the wide card's grid stands above the columns");

double columnWidth(double areaWidth) {
    constexpr auto columns = static_cast<double>(Masonry::overlayColumns);
    return std::floor((areaWidth - (columns - 1) * cardGap) / columns);
}

/// The last column ends where the area does: what is left of a pixel goes into the gaps.
double columnLeft(std::size_t column, double areaWidth) {
    constexpr auto last = static_cast<double>(Masonry::overlayColumns - 1);
    return std::round((areaWidth - columnWidth(areaWidth)) * static_cast<double>(column) / last);
}

/// Lays cards out one by one.
class Builder {
  public:
    Builder(
        AreaLayout& layout, const AreaContent& content, const PreparedSheet& sheet,
        const TextMeasure& measure)
        : m_layout(layout), m_content(content), m_sheet(sheet), m_measure(measure) {}

    /// Returns the card's height.
    double place(std::size_t card, QPointF topLeft, double width, std::size_t column) {
        const AreaCard& content = m_content.cards[card];
        const std::size_t firstRow = m_layout.rows.size();
        const QRectF inner(
            topLeft.x() + cardHorizontalPadding, topLeft.y() + cardTop, width - 2 * cardHorizontalPadding, 0);
        double y = placeTitle(card, inner) + titleGap;
        if (content.shape == CardShape::wide)
            y = placeGrid(card, inner, y);
        else
            y = placeSections(card, inner, y, column);
        const double height = y + cardBottom - topLeft.y();
        m_layout.cards[card] = {QRectF(topLeft, QSizeF(width, height)), firstRow, m_layout.rows.size()};
        return height;
    }

  private:
    double placeTitle(std::size_t card, const QRectF& inner) {
        const QRectF rect(
            inner.x() + rowInset, inner.y(), inner.width() - 2 * rowInset, m_measure.heading.lineHeight());
        const double icon = m_content.cards[card].icon ? headingIconSize(m_measure) + partGap : 0;
        m_layout.headings.push_back({HeadingBox::Kind::card, rect, card, 0, rect.left() + icon});
        return rect.bottom();
    }

    double placeSections(std::size_t card, const QRectF& inner, double y, std::size_t column) {
        const RowArranger arranger(m_measure, inner.width() - 2 * rowInset);
        const std::vector<AreaSection>& sections = m_content.cards[card].sections;
        for (std::size_t i = 0; i < sections.size(); ++i) {
            y = placeSectionStart(card, i, inner, y);
            for (const std::size_t entry : sections[i].rows) {
                const double height = arranger.height(m_sheet.entries[entry], SubmenuInRow::hidden);
                m_layout.rows.push_back(
                    {.rect = QRectF(inner.x(), y, inner.width(), height),
                     .card = card,
                     .entry = entry,
                     .submenu = SubmenuInRow::hidden,
                     .column = column});
                y += height;
            }
        }
        return y;
    }

    double placeSectionStart(std::size_t card, std::size_t section, const QRectF& inner, double y) {
        const double left = inner.x() + rowInset;
        const double width = inner.width() - 2 * rowInset;
        if (!m_content.cards[card].sections[section].caption.isEmpty()) {
            const QRectF rect(left, y + captionTop, width, m_measure.caption.lineHeight());
            m_layout.headings.push_back({HeadingBox::Kind::submenu, rect, card, section, left});
            return rect.bottom() + captionBottom;
        }
        if (section == 0)
            return y;
        m_layout.dividers.push_back({QRectF(left, y + dividerMargin, width, dividerHeight), card});
        return y + 2 * dividerMargin + dividerHeight;
    }

    /// The rows' parts stand above those of the columns below, whose cards are further apart than the grid's
    /// columns.
    double placeGrid(std::size_t card, const QRectF& inner, double y) {
        const double width = columnWidth(m_layout.width) + cardGap - wideColumnGap;
        const double inset = rowInset + cardHorizontalPadding - (wideColumnGap - cardGap) / 2;
        const double left = inner.x() + rowInset - inset;
        const RowArranger arranger(m_measure, width - 2 * inset);
        std::size_t column = 0;
        double rowHeight = 0;
        for (const AreaSection& section : m_content.cards[card].sections) {
            for (const std::size_t entry : section.rows) {
                if (column == wideColumns) {
                    column = 0;
                    y += std::exchange(rowHeight, 0);
                }
                const double height = arranger.height(m_sheet.entries[entry], SubmenuInRow::shown);
                const double x = left + columnLeft(column, m_layout.width);
                m_layout.rows.push_back(
                    {QRectF(x, y, width, height), card, entry, SubmenuInRow::shown, column, inset});
                rowHeight = std::max(rowHeight, height);
                ++column;
            }
        }
        return y + rowHeight;
    }

    AreaLayout& m_layout;
    const AreaContent& m_content;
    const PreparedSheet& m_sheet;
    const TextMeasure& m_measure;
};

/// The masonry column of each card.
std::vector<std::size_t> columnsOf(std::span<const AreaCard> cards) {
    std::vector<std::size_t> weights;
    weights.reserve(cards.size());
    for (const AreaCard& card : cards)
        weights.push_back(Masonry::weight(card.rowCount()));
    std::vector<std::size_t> columns(cards.size());
    const auto stacks = Masonry::deal(weights, Masonry::overlayColumns);
    for (std::size_t column = 0; column < stacks.size(); ++column) {
        for (const std::size_t card : stacks[column])
            columns[card] = column;
    }
    return columns;
}

} // namespace

const QString& HeadingBox::text(const AreaContent& content) const {
    const AreaCard& shown = content.cards[card];
    return kind == Kind::card ? shown.title : shown.sections[section].caption;
}

const MeasuredFont& HeadingBox::font(const TextMeasure& measure) const {
    return kind == Kind::card ? measure.heading : measure.caption;
}

int headingIconSize(const TextMeasure& measure) {
    return static_cast<int>(std::ceil(measure.heading.metrics().capHeight() * 1.4));
}

AreaLayout AreaLayout::of(
    const AreaContent& content, const PreparedSheet& sheet, const TextMeasure& measure, double width) {
    AreaLayout layout;
    layout.width = width;
    layout.cards.resize(content.cards.size());
    Builder builder(layout, content, sheet, measure);

    const auto isWide = [](const AreaCard& card) { return card.shape == CardShape::wide; };
    const auto narrow =
        static_cast<std::size_t>(std::ranges::find_if_not(content.cards, isWide) - content.cards.begin());
    double top = 0;
    for (std::size_t card = 0; card < narrow; ++card)
        top += builder.place(card, QPointF(0, top), width, 0) + cardGap;

    constexpr std::size_t columns = Masonry::overlayColumns;
    const std::vector<std::size_t> columnOf = columnsOf(std::span(content.cards).subspan(narrow));
    std::array<double, columns> bottoms;
    bottoms.fill(top);
    for (std::size_t group = 0; group < columnOf.size(); ++group) {
        const std::size_t column = columnOf[group];
        const QPointF topLeft(columnLeft(column, width), bottoms[column]);
        bottoms[column] += builder.place(narrow + group, topLeft, columnWidth(width), column) + cardGap;
    }
    const double bottom = std::ranges::max(bottoms);
    layout.height = std::max(0.0, bottom - cardGap);
    return layout;
}

std::ptrdiff_t AreaLayout::rowAt(QPointF point) const {
    for (const CardBox& card : cards) {
        if (!card.rect.contains(point))
            continue;
        for (std::size_t row = card.firstRow; row < card.endRow; ++row) {
            if (rows[row].rect.contains(point))
                return static_cast<std::ptrdiff_t>(row);
        }
    }
    return -1;
}

} // namespace quillon
