#include "library_row_delegate.h"

#include "library_rows_model.h"
#include "line_room.h"

#include <quillon/app/views/components/symbols.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int sidePadding = 18;
constexpr int rowPadding = 5;
constexpr int statisticsRoom = 8; ///< above the first row
constexpr int headingRoom = 16;   ///< above a heading
constexpr int gap = 12;
constexpr int countsWidth = 90;
constexpr double countsSize = 11;
constexpr int widestKeyColumn = 150; ///< wider keys push their row's counts aside
constexpr int focusInset = 8;
constexpr double cornerRadius = 6;

int heightOf(const QFont& font) {
    return QFontMetrics(font).height();
}

const LibraryRow& rowAt(const QModelIndex& index) {
    return static_cast<const LibraryRowsModel*>(index.model())->row(index);
}

QRect boxOf(const QStyleOptionViewItem& option) {
    return option.rect.adjusted(sidePadding, rowPadding, -sidePadding, -rowPadding);
}

/// From left to right, or the other way round where people read so.
QRect mirrored(const QStyleOptionViewItem& option, const QRect& place) {
    return QStyle::visualRect(option.direction, option.rect, place);
}

struct Line {
    const QFont& font;
    const QColor& colour;
    const QString& words;
};

void paintLine(QPainter& painter, const Line& line, const QRect& place, Qt::Alignment where) {
    painter.setFont(line.font);
    painter.setPen(line.colour);
    const QString shown = QFontMetrics(line.font).elidedText(line.words, Qt::ElideRight, place.width());
    painter.drawText(place, static_cast<int>(where) | Qt::TextSingleLine, shown);
}

bool isTooLong(const QString& words, const QFont& font, const QRect& place) {
    return lineRoom(font, words) > place.width();
}

} // namespace

LibraryRowDelegate::LibraryRowDelegate(Theme theme, QObject* parent)
    : QStyledItemDelegate(parent), m_theme(std::move(theme)),
      m_countsFont(atSize(m_theme.styles.caption, countsSize)), m_noteFont(italic(m_theme.styles.caption)),
      m_keys(m_theme, m_theme.keySize()) {}

void LibraryRowDelegate::makeRoomForKeys(const std::vector<LibraryRow>& rows) {
    double widest = 0;
    for (const LibraryRow& row : rows)
        if (row.shortcut)
            widest = std::max(widest, m_keys.width(*row.shortcut));
    m_keysWidth = std::min(static_cast<int>(std::ceil(widest)), widestKeyColumn);
}

QSize LibraryRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    const TextStyles& styles = m_theme.styles;
    const LibraryRow& row = rowAt(index);
    switch (row.kind) {
    case LibraryRow::Kind::statistics:
        return {0, heightOf(styles.headline) + statisticsRoom + 2 * rowPadding};
    case LibraryRow::Kind::totals:
        return {0, std::max(heightOf(styles.callout), m_theme.symbolSize()) + 2 * rowPadding};
    case LibraryRow::Kind::heading: return {0, heightOf(styles.headline) + headingRoom + 2 * rowPadding};
    case LibraryRow::Kind::command: break;
    }
    const int line = std::max(heightOf(styles.body), static_cast<int>(std::ceil(m_keys.height())));
    return {0, line + (row.note.isEmpty() ? 0 : heightOf(m_noteFont)) + 2 * rowPadding};
}

void LibraryRowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const LibraryRow& row = rowAt(index);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setLayoutDirection(option.direction);
    paintFocus(*painter, option);
    const Palette& palette = m_theme.palette;
    const QFont& headline = m_theme.styles.headline;
    switch (row.kind) {
    case LibraryRow::Kind::statistics:
        paintLine(*painter, {headline, palette.primary, row.text}, boxOf(option), Qt::AlignBottom);
        break;
    case LibraryRow::Kind::totals: paintTotals(*painter, option, row); break;
    case LibraryRow::Kind::heading:
        paintLine(*painter, {headline, palette.secondary, row.text}, boxOf(option), Qt::AlignBottom);
        break;
    case LibraryRow::Kind::command: paintCommand(*painter, option, row); break;
    }
    painter->restore();
}

void LibraryRowDelegate::paintFocus(QPainter& painter, const QStyleOptionViewItem& option) const {
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    painter.setPen(QPen(m_theme.palette.focusRing, 1.5));
    painter.setBrush(Qt::NoBrush);
    const QRectF ring = QRectF(option.rect).adjusted(focusInset, 1, -focusInset, -1);
    painter.drawRoundedRect(ring, cornerRadius, cornerRadius);
}

LibraryRowDelegate::Places LibraryRowDelegate::placesOf(const LibraryRow& row, const QRect& box) const {
    Places places;
    const int noteHeight = row.note.isEmpty() ? 0 : heightOf(m_noteFont);
    const QRect line = box.adjusted(0, 0, 0, -noteHeight);
    const int keys = row.shortcut ? static_cast<int>(std::ceil(m_keys.width(*row.shortcut))) : 0;
    places.keys = QRect(line.right() + 1 - keys, line.top(), keys, line.height());
    int end = line.right() + 1 - std::max(keys, m_keysWidth) - gap;
    if (!row.counts.isEmpty()) {
        const QFont font = row.leansOnClicks ? bold(m_countsFont) : m_countsFont;
        const int width = std::max(countsWidth, lineRoom(font, row.counts));
        places.counts = QRect(end - width, line.top(), width, line.height());
        end = places.counts.left() - gap;
    }
    places.title = QRect(line.left(), line.top(), std::max(0, end - line.left()), line.height());
    const int noteEnd = row.counts.isEmpty() ? end : places.counts.right() + 1;
    places.note = QRect(box.left(), line.bottom() + 1, std::max(0, noteEnd - box.left()), noteHeight);
    return places;
}

void LibraryRowDelegate::paintCommand(
    QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const {
    const Palette& palette = m_theme.palette;
    const Places places = placesOf(row, boxOf(option));
    paintLine(
        painter, {m_theme.styles.body, palette.primary, row.text}, mirrored(option, places.title),
        Qt::AlignVCenter);
    if (!row.note.isEmpty())
        paintLine(
            painter, {m_noteFont, palette.secondary, row.note}, mirrored(option, places.note),
            Qt::AlignVCenter);
    if (!row.counts.isEmpty()) {
        const QFont font = row.leansOnClicks ? bold(m_countsFont) : m_countsFont;
        const QColor& colour = row.leansOnClicks ? palette.primary : palette.secondary;
        paintLine(
            painter, {font, colour, row.counts}, mirrored(option, places.counts),
            Qt::AlignRight | Qt::AlignVCenter);
    }
    if (row.shortcut) {
        const QRect keys = mirrored(option, places.keys);
        const double top = std::floor(keys.top() + (keys.height() - m_keys.height()) / 2);
        m_keys.paint(painter, {static_cast<double>(keys.left()), top}, *row.shortcut);
    }
}

void LibraryRowDelegate::paintTotals(
    QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const {
    const QColor& colour = m_theme.palette.secondary;
    const QFont& font = m_theme.styles.callout;
    const int size = m_theme.symbolSize();
    QRect box = boxOf(option);
    const QRect symbol(box.left(), box.top() + (box.height() - size) / 2, size, size);
    painter.drawPixmap(
        mirrored(option, symbol).topLeft(),
        symbolPixmap(Symbol::keyboard, size, colour, painter.device()->devicePixelRatioF()));
    box.setLeft(symbol.right() + 1 + gap / 2);
    paintLine(painter, {font, colour, row.text}, mirrored(option, box), Qt::AlignVCenter);
    box.setLeft(box.left() + lineRoom(font, row.text) + gap);
    paintLine(painter, {font, colour, row.counts}, mirrored(option, box), Qt::AlignVCenter);
}

bool LibraryRowDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
    const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const LibraryRow& row = rowAt(index);
    const Places places = placesOf(row, boxOf(option));
    const bool isCut = row.kind == LibraryRow::Kind::command
                       && (isTooLong(row.text, m_theme.styles.body, places.title)
                           || isTooLong(row.note, m_noteFont, places.note));
    if (!isCut) {
        QToolTip::hideText();
        return true;
    }
    QString tip = row.text.toHtmlEscaped();
    if (!row.note.isEmpty())
        tip += u"<br><i>"_s + row.note.toHtmlEscaped() + u"</i>"_s;
    QToolTip::showText(event->globalPos(), tip, view->viewport(), option.rect);
    return true;
}

} // namespace quillon
