#include "library_row_layout.h"

#include "line_room.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace quillon {

namespace {

constexpr int sidePadding = 18;
constexpr int rowPadding = 4;
constexpr int groundInset = 8;    ///< of a row's background
constexpr int statisticsRoom = 8; ///< above the first row
constexpr int headingRoom = 16;   ///< above a heading
constexpr int buttonPadding = 6;  ///< around a button's symbol
constexpr int countsWidth = 90;
constexpr double countsSize = 11;
/// How much of a row its keys may take; wider ones are drawn smaller.
constexpr double mostOfRow = 0.38;

int roomAbove(LibraryRow::Kind kind) {
    switch (kind) {
    case LibraryRow::Kind::statistics: return statisticsRoom;
    case LibraryRow::Kind::heading: return headingRoom;
    default: return 0;
    }
}

int heightOf(const QFont& font) {
    return QFontMetrics(font).height();
}

} // namespace

std::optional<RowButton> CommandPlaces::buttonAt(const QPoint& point) const {
    for (const RowButton one : allRowButtons)
        if (button(one).contains(point))
            return one;
    return std::nullopt;
}

LibraryRowLayout::LibraryRowLayout(const Theme& theme)
    : m_countsFont(atSize(theme.styles.caption, countsSize)), m_boldCountsFont(bold(m_countsFont)),
      m_noteFont(italic(theme.styles.caption)), m_remarkFont(theme.styles.callout),
      m_keys(theme, theme.keySize()), m_chart(theme), m_symbolSize(theme.symbolSize()),
      m_noteHeight(heightOf(m_noteFont)) {
    const int headline = heightOf(theme.styles.headline);
    m_statisticsHeight = headline + statisticsRoom + 2 * rowPadding;
    m_totalsHeight = std::max(heightOf(theme.styles.callout), m_symbolSize) + 2 * rowPadding;
    m_headingHeight = headline + headingRoom + 2 * rowPadding;
    m_lineHeight = std::max(
        {heightOf(theme.styles.body), static_cast<int>(std::ceil(m_keys.height())),
         m_symbolSize + 2 * buttonPadding});
}

void LibraryRowLayout::makeRoomForKeys(const std::vector<LibraryRow>& rows) {
    double widest = 0;
    for (const LibraryRow& row : rows)
        if (row.shortcut)
            widest = std::max(widest, m_keys.width(*row.shortcut));
    m_widestKeys = static_cast<int>(std::ceil(widest));
}

int LibraryRowLayout::height(const LibraryRow& row, int width) const {
    switch (row.kind) {
    case LibraryRow::Kind::statistics: return m_statisticsHeight;
    case LibraryRow::Kind::totals: return m_totalsHeight;
    case LibraryRow::Kind::heading: return m_headingHeight;
    case LibraryRow::Kind::weeks: return m_chart.height() + 2 * rowPadding;
    case LibraryRow::Kind::remark: {
        const QRect room(0, 0, std::max(1, width - 2 * sidePadding), INT_MAX / 2);
        return QFontMetrics(m_remarkFont).boundingRect(room, Qt::TextWordWrap, row.text).height()
               + 2 * rowPadding;
    }
    case LibraryRow::Kind::command: break;
    }
    return m_lineHeight + (row.note.isEmpty() ? 0 : m_noteHeight) + 2 * rowPadding;
}

QRect LibraryRowLayout::groundOf(const LibraryRow& row, const QRect& place) {
    return place.adjusted(groundInset, roomAbove(row.kind), -groundInset, 0);
}

QRect LibraryRowLayout::boxOf(const QRect& row) const {
    return row.adjusted(sidePadding, rowPadding, -sidePadding, -rowPadding);
}

CommandPlaces LibraryRowLayout::placesOf(const LibraryRow& row, const QRect& box) const {
    CommandPlaces places;
    const QRect line(box.left(), box.top(), box.width(), m_lineHeight);
    const int column = std::min(m_widestKeys, static_cast<int>(mostOfRow * line.width()));
    const double wanted = row.shortcut ? m_keys.width(*row.shortcut) : 0;
    places.keysScale = wanted > column ? column / wanted : 1;
    const int keys = static_cast<int>(std::ceil(wanted * places.keysScale));
    places.keys = QRect(line.right() + 1 - keys, line.top(), keys, line.height());

    const int size = m_symbolSize + 2 * buttonPadding;
    const int buttonsLeft = line.right() + 1 - column - gap - size * static_cast<int>(allRowButtons.size());
    for (std::size_t at = 0; at < places.buttons.size(); ++at)
        places.buttons[at] = QRect(
            buttonsLeft + size * static_cast<int>(at), line.top() + (line.height() - size) / 2, size, size);

    if (!row.note.isEmpty()) {
        const int room = places.buttons.back().right() + 1 - line.left();
        places.note = QRect(line.left(), line.bottom() + 1, std::max(0, room), m_noteHeight);
    }
    int end = buttonsLeft - gap + buttonPadding;
    if (!row.counts.isEmpty()) {
        const int width = std::max(countsWidth, lineRoom(countsFont(row), row.counts));
        places.counts = QRect(end - width, line.top(), width, line.height());
        end = places.counts.left() - gap;
    }
    places.title = QRect(line.left(), line.top(), std::max(0, end - line.left()), line.height());
    return places;
}

} // namespace quillon
