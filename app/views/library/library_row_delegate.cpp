#include "library_row_delegate.h"

#include "library_rows_model.h"
#include "line_room.h"

#include <quillon/app/views/components/symbols.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <cmath>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr double cornerRadius = 6;
constexpr double ringWidth = 1.5;
/// Of a button that stands for nothing that was said, while neither pointer nor keyboard are near.
constexpr double restingOpacity = 0.78;

const LibraryRow& rowAt(const QModelIndex& index) {
    return static_cast<const LibraryRowsModel*>(index.model())->row(index);
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

/// What the button stands for, where it stands for something.
const QColor& colourOf(RowButton button, const Palette& palette) {
    return button == RowButton::pin ? palette.pin : palette.primary;
}

} // namespace

LibraryRowDelegate::LibraryRowDelegate(Theme theme, QObject* parent)
    : QStyledItemDelegate(parent), m_theme(std::move(theme)), m_layout(m_theme) {}

QSize LibraryRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto* const list = qobject_cast<const QAbstractItemView*>(option.widget);
    return {0, m_layout.height(rowAt(index), list ? list->viewport()->width() : option.rect.width())};
}

std::optional<RowButton> LibraryRowDelegate::buttonAt(
    const QPoint& point, const QStyleOptionViewItem& option, const LibraryRow& row) const {
    if (row.kind != LibraryRow::Kind::command)
        return std::nullopt;
    const QPoint unmirrored = mirrored(option, QRect(point, QSize(1, 1))).topLeft();
    return m_layout.placesOf(row, m_layout.boxOf(option.rect)).buttonAt(unmirrored);
}

QRect LibraryRowDelegate::buttonRect(
    RowButton button, const QStyleOptionViewItem& option, const LibraryRow& row) const {
    return mirrored(option, m_layout.placesOf(row, m_layout.boxOf(option.rect)).button(button));
}

void LibraryRowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const LibraryRow& row = rowAt(index);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setLayoutDirection(option.direction);
    paintGround(*painter, option, row);
    const Palette& palette = m_theme.palette;
    const QFont& headline = m_theme.styles.headline;
    const QRect box = m_layout.boxOf(option.rect);
    switch (row.kind) {
    case LibraryRow::Kind::statistics:
        paintLine(*painter, {headline, palette.primary, row.text}, box, Qt::AlignBottom);
        break;
    case LibraryRow::Kind::totals: paintTotals(*painter, option, row); break;
    case LibraryRow::Kind::heading:
        paintLine(*painter, {headline, palette.secondary, row.text}, box, Qt::AlignBottom);
        break;
    case LibraryRow::Kind::command: paintCommand(*painter, option, row); break;
    case LibraryRow::Kind::weeks: m_layout.chart().paint(*painter, box, row.weeks); break;
    case LibraryRow::Kind::remark:
        painter->setFont(m_layout.remarkFont());
        painter->setPen(palette.secondary);
        painter->drawText(box, Qt::TextWordWrap, row.text);
        break;
    }
    painter->restore();
}

void LibraryRowDelegate::paintGround(
    QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const {
    const QRectF ground = QRectF(LibraryRowLayout::groundOf(row, option.rect)).adjusted(0, 1, 0, -1);
    if (row.kind == LibraryRow::Kind::command && option.state.testFlag(QStyle::State_MouseOver)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_theme.palette.hover);
        painter.drawRoundedRect(ground, cornerRadius, cornerRadius);
    }
    if (option.state.testFlag(QStyle::State_HasFocus) && !m_marks.focused) {
        painter.setPen(QPen(m_theme.palette.focusRing, ringWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(ground, cornerRadius, cornerRadius);
    }
}

void LibraryRowDelegate::paintCommand(
    QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const {
    const Palette& palette = m_theme.palette;
    const CommandPlaces places = m_layout.placesOf(row, m_layout.boxOf(option.rect));
    paintLine(
        painter, {m_theme.styles.body, palette.primary, row.text}, mirrored(option, places.title),
        Qt::AlignVCenter);
    if (!row.note.isEmpty())
        paintLine(
            painter, {m_layout.noteFont(), palette.secondary, row.note}, mirrored(option, places.note),
            Qt::AlignVCenter);
    if (!row.counts.isEmpty())
        paintLine(
            painter,
            {m_layout.countsFont(row), row.leansOnClicks ? palette.primary : palette.secondary, row.counts},
            mirrored(option, places.counts), Qt::AlignRight | Qt::AlignVCenter);
    for (const RowButton button : allRowButtons)
        paintButton(painter, option, row, button);
    if (row.shortcut)
        paintKeys(painter, mirrored(option, places.keys), places, *row.shortcut);
}

void LibraryRowDelegate::paintButton(
    QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row, RowButton button) const {
    const Palette& palette = m_theme.palette;
    const bool isNear =
        option.state.testFlag(QStyle::State_MouseOver) || option.state.testFlag(QStyle::State_HasFocus);
    const bool isHovered = option.state.testFlag(QStyle::State_MouseOver) && m_marks.hovered == button;
    const bool isFocused = option.state.testFlag(QStyle::State_HasFocus) && m_marks.focused == button;
    const QRect place = buttonRect(button, option, row);
    const QRectF ground = QRectF(place).adjusted(1, 1, -1, -1);
    painter.setPen(isFocused ? QPen(palette.focusRing, ringWidth) : QPen(Qt::NoPen));
    painter.setBrush(isHovered ? palette.primaryAt(m_marks.isDown ? 0.18 : 0.09) : QColor(Qt::transparent));
    painter.drawRoundedRect(ground, cornerRadius, cornerRadius);

    const bool stands = isSet(button, row);
    const int size = m_layout.symbolSize();
    const QPixmap symbol = symbolPixmap(
        symbolOf(button, row), size, stands ? colourOf(button, palette) : palette.secondary,
        painter.device()->devicePixelRatioF(), option.direction);
    painter.setOpacity(stands || isNear ? 1 : restingOpacity);
    painter.drawPixmap(
        place.left() + (place.width() - size) / 2, place.top() + (place.height() - size) / 2, symbol);
    painter.setOpacity(1);
}

void LibraryRowDelegate::paintKeys(
    QPainter& painter, const QRect& place, const CommandPlaces& places, const Shortcut& shortcut) const {
    const KeyCaps& keys = m_layout.keys();
    const double height = keys.height() * places.keysScale;
    const double top = std::floor(place.top() + (place.height() - height) / 2);
    painter.save();
    painter.translate(place.left(), top);
    painter.scale(places.keysScale, places.keysScale);
    keys.paint(painter, {0, 0}, shortcut);
    painter.restore();
}

void LibraryRowDelegate::paintTotals(
    QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const {
    const QColor& colour = m_theme.palette.secondary;
    const QFont& font = m_theme.styles.callout;
    const int size = m_layout.symbolSize();
    QRect box = m_layout.boxOf(option.rect);
    const QRect symbol(box.left(), box.top() + (box.height() - size) / 2, size, size);
    painter.drawPixmap(
        mirrored(option, symbol).topLeft(),
        symbolPixmap(Symbol::keyboard, size, colour, painter.device()->devicePixelRatioF()));
    box.setLeft(symbol.right() + 1 + LibraryRowLayout::gap / 2);
    paintLine(painter, {font, colour, row.text}, mirrored(option, box), Qt::AlignVCenter);
    box.setLeft(box.left() + lineRoom(font, row.text) + LibraryRowLayout::gap);
    paintLine(painter, {font, colour, row.counts}, mirrored(option, box), Qt::AlignVCenter);
}

QString LibraryRowDelegate::tipAt(
    const QPoint& point, const QStyleOptionViewItem& option, const LibraryRow& row) const {
    if (row.kind != LibraryRow::Kind::command)
        return {};
    if (const auto button = buttonAt(point, option, row))
        return helpOf(*button, row).toHtmlEscaped();
    const CommandPlaces places = m_layout.placesOf(row, m_layout.boxOf(option.rect));
    if (!isTooLong(row.text, m_theme.styles.body, places.title)
        && !isTooLong(row.note, m_layout.noteFont(), places.note))
        return {};
    QString tip = row.text.toHtmlEscaped();
    if (!row.note.isEmpty())
        tip += u"<br><i>"_s + row.note.toHtmlEscaped() + u"</i>"_s;
    return tip;
}

bool LibraryRowDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
    const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const LibraryRow& row = rowAt(index);
    const QString tip = tipAt(event->pos(), option, row);
    if (tip.isEmpty()) {
        QToolTip::hideText();
        return true;
    }
    const auto button = buttonAt(event->pos(), option, row);
    const QRect place = button ? buttonRect(*button, option, row) : option.rect;
    // Rich text, so that a long tip is wrapped.
    QToolTip::showText(event->globalPos(), u"<qt>"_s + tip + u"</qt>"_s, view->viewport(), place);
    return true;
}

} // namespace quillon
