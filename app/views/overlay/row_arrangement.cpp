#include "row_arrangement.h"

#include "overlay_texts.h"
#include "row_flow.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double verticalPadding = 2;
/// Below a row of several lines, so that its lines are seen to belong together.
constexpr double severalLinesPadding = 4;
/// The title keeps at least this part of the first line; else the keys move below it.
constexpr double titleShare = 0.45;
/// What is longer ends in an ellipsis and is told in full by the row's tooltip.
constexpr int mostTitleLines = 4;
constexpr int mostNoteLines = 6;

double pinSize(const TextMeasure& measure) {
    return std::ceil(measure.title.metrics().capHeight() * 1.2);
}

QRectF placePin(RowFlow& flow, const TextMeasure& measure) {
    const double size = pinSize(measure);
    const double middle = flow.baseline() - measure.title.metrics().capHeight() / 2;
    return {flow.take(size), std::round(middle - size / 2), size, size};
}

/// A note begins beside the other parts only when all of it fits there.
std::vector<PlacedText> placeNote(RowFlow& flow, const QString& note, const MeasuredFont& font) {
    if (!flow.fits(font.width(note)))
        flow.newLine(std::ceil(font.metrics().ascent()), font.lineHeight());
    return flow.placeParagraph(note, font, mostNoteLines);
}

} // namespace

bool RowArrangement::isElided() const {
    return std::ranges::any_of(title, &PlacedText::elided) || (submenu && submenu->elided)
           || (badge && badge->elided) || std::ranges::any_of(note, &PlacedText::elided);
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

double RowArranger::roomBesideKeys(const PreparedEntry& entry) const {
    return m_width - m_measure.keys.width(entry.shortcut) - partGap - pinRoom(entry);
}

bool RowArranger::keysGoBelow(const PreparedEntry& entry) const {
    const double room = roomBesideKeys(entry);
    return room < m_width * titleShare && room < m_measure.title.width(entry.title);
}

RowArrangement RowArranger::arrange(const PreparedEntry& entry, SubmenuInRow submenu) const {
    const double keysScale = std::min(1.0, m_width / m_measure.keys.width(entry.shortcut));
    const double keysWidth = m_measure.keys.width(entry.shortcut) * keysScale;
    const double keysHeight = m_measure.keys.height() * keysScale;
    const double keysAscent = m_measure.keys.baseline() * keysScale;
    const bool keysBelow = keysGoBelow(entry);
    const double right = keysBelow ? m_width : m_width - keysWidth - partGap;
    RowFlow flow({.right = right, .baseline = m_baseline, .bottom = m_lineHeight - verticalPadding}, m_width);

    RowArrangement row;
    row.keysScale = keysScale;
    row.title = flow.placeParagraph(entry.title, m_measure.title, mostTitleLines, pinRoom(entry));
    const bool namesSubmenu = submenu == SubmenuInRow::shown && !entry.submenu.isEmpty();
    const bool submenuBeside =
        namesSubmenu && flow.fits(m_measure.submenu.width(entry.submenu) + pinRoom(entry));
    if (submenuBeside)
        row.submenu = flow.placeText(entry.submenu, m_measure.submenu);
    if (entry.pinned)
        row.pin = placePin(flow, m_measure);
    double keysTop = m_baseline - keysAscent;
    if (keysBelow) {
        flow.newLine(keysAscent, keysHeight, keysWidth + partGap);
        keysTop = flow.baseline() - keysAscent;
    }
    if (namesSubmenu && !submenuBeside)
        row.submenu = flow.placeText(entry.submenu, m_measure.submenu);
    if (entry.clicked > 0)
        row.badge = flow.placeText(OverlayTexts::badge(entry.clicked), m_measure.caption, badgePadding);
    if (!entry.note.isEmpty())
        row.note = placeNote(flow, entry.note, m_measure.note);

    row.keys = QRectF(m_width - keysWidth, keysTop, keysWidth, keysHeight);
    const double oneLine = m_lineHeight - verticalPadding;
    row.height = flow.bottom() + verticalPadding + (flow.bottom() > oneLine ? severalLinesPadding : 0);
    return row;
}

double RowArranger::height(const PreparedEntry& entry, SubmenuInRow submenu) const {
    const bool isPlain = entry.clicked == 0 && entry.note.isEmpty()
                         && (submenu == SubmenuInRow::hidden || entry.submenu.isEmpty());
    const bool isOneLine = isPlain && m_measure.title.width(entry.title) <= roomBesideKeys(entry);
    return isOneLine ? m_lineHeight : arrange(entry, submenu).height;
}

} // namespace quillon
