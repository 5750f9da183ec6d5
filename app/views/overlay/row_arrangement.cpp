#include "row_arrangement.h"

#include "overlay_state.h"
#include "row_flow.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double verticalPadding = 3;
/// The title keeps at least this part of the first line; else the keys move below it.
constexpr double titleShare = 0.45;
/// A longer note ends in an ellipsis and is told in full by the row's tooltip.
constexpr int mostNoteLines = 6;

double pinSize(const TextMeasure& measure) {
    return std::ceil(measure.title.metrics().capHeight() * 1.2);
}

QRectF placePin(RowFlow& flow, const TextMeasure& measure) {
    const double size = pinSize(measure);
    const double middle = flow.baseline() - measure.title.metrics().capHeight() / 2;
    return {flow.take(size), std::round(middle - size / 2), size, size};
}

} // namespace

bool RowArrangement::isElided() const {
    return title.elided || (submenu && submenu->elided) || (badge && badge->elided)
           || std::ranges::any_of(note, &PlacedText::elided);
}

RowArranger::RowArranger(const TextMeasure& measure, double width)
    : m_measure(measure), m_width(std::max(1.0, std::floor(width))) {
    const QFontMetricsF& title = measure.title.metrics();
    const double below = std::max(title.descent(), measure.keys.height() - measure.keys.baseline());
    m_baseline = verticalPadding + std::ceil(std::max(title.ascent(), measure.keys.baseline()));
    m_lineHeight = m_baseline + std::ceil(below) + verticalPadding;
}

double RowArranger::pinRoom(const PreparedEntry& entry) const {
    return entry.pinned ? partGap + pinSize(m_measure) : 0;
}

bool RowArranger::keysGoBelow(const PreparedEntry& entry) const {
    const double room = m_width - m_measure.keys.width(entry.shortcut) - partGap - pinRoom(entry);
    return room < m_width * titleShare && room < m_measure.title.width(entry.title);
}

RowArrangement RowArranger::arrange(const PreparedEntry& entry, SubmenuInRow submenu) const {
    const double keysWidth = m_measure.keys.width(entry.shortcut);
    const double keysScale = std::min(1.0, m_width / keysWidth);
    const bool keysBelow = keysGoBelow(entry);
    const double right = keysBelow ? m_width : m_width - keysWidth - partGap;
    RowFlow flow({.right = right, .baseline = m_baseline, .bottom = m_lineHeight - verticalPadding}, m_width);
    RowArrangement row;
    row.keysScale = keysScale;

    const double titleRoom = std::max(1.0, right - pinRoom(entry));
    const double titleWidth = std::min(m_measure.title.width(entry.title), titleRoom);
    row.title.elided = m_measure.title.width(entry.title) > titleRoom;
    row.title.text = row.title.elided
                         ? m_measure.title.metrics().elidedText(entry.title, Qt::ElideRight, titleRoom)
                         : entry.title;
    row.title.baseline = m_baseline;
    row.title.rect = QRectF(
        flow.take(titleWidth), m_baseline - std::ceil(m_measure.title.metrics().ascent()), titleWidth,
        m_measure.title.lineHeight());

    const bool namesSubmenu = submenu == SubmenuInRow::shown && !entry.submenu.isEmpty();
    const bool submenuBeside =
        namesSubmenu && flow.fits(m_measure.submenu.width(entry.submenu) + pinRoom(entry));
    if (submenuBeside)
        row.submenu = flow.placeText(entry.submenu, m_measure.submenu);
    if (entry.pinned)
        row.pin = placePin(flow, m_measure);
    if (namesSubmenu && !submenuBeside)
        row.submenu = flow.placeText(entry.submenu, m_measure.submenu);
    if (entry.clicked > 0)
        row.badge = flow.placeText(OverlayTexts::badge(entry.clicked), m_measure.caption, badgePadding);
    if (!entry.note.isEmpty())
        row.note = flow.placeParagraph(entry.note, m_measure.note, mostNoteLines);

    double keysBaseline = m_baseline;
    if (keysBelow) {
        flow.newLine(m_measure.keys.baseline() * keysScale, m_measure.keys.height() * keysScale);
        keysBaseline = flow.baseline();
    }
    row.keys = QRectF(
        m_width - keysWidth * keysScale, keysBaseline - m_measure.keys.baseline() * keysScale,
        keysWidth * keysScale, m_measure.keys.height() * keysScale);
    row.height = flow.bottom() + verticalPadding;
    return row;
}

double RowArranger::height(const PreparedEntry& entry, SubmenuInRow submenu) const {
    const bool isPlain = entry.clicked == 0 && entry.note.isEmpty()
                         && (submenu == SubmenuInRow::hidden || entry.submenu.isEmpty());
    return isPlain && !keysGoBelow(entry) ? m_lineHeight : arrange(entry, submenu).height;
}

} // namespace quillon
