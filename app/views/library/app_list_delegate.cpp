#include "app_list_delegate.h"

#include "app_list_model.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace quillon {

namespace {

constexpr int iconSize = 28;
constexpr int padding = 8;
constexpr int verticalPadding = 6;
constexpr int gap = 10;
constexpr int inset = 6; ///< of the row's background
constexpr double cornerRadius = 7;

struct EdgeRoom {
    int above = 0;
    int below = 0;
};

/// As much as beside them, above the first row and below the last.
EdgeRoom edgeRoom(const QModelIndex& index) {
    const int last = index.model()->rowCount(index.parent()) - 1;
    return {index.row() == 0 ? inset : 0, index.row() == last ? inset : 0};
}

void paintBackground(
    QPainter& painter, const QStyleOptionViewItem& option, const QRect& row, const Palette& palette) {
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    const QRectF background = QRectF(row).adjusted(inset, 1, -inset, -1);
    if (isChosen || option.state.testFlag(QStyle::State_MouseOver)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isChosen ? palette.primaryAt(0.12) : palette.hover);
        painter.drawRoundedRect(background, cornerRadius, cornerRadius);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setPen(QPen(palette.focusRing, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(background.adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    }
}

/// A plain place where there is no icon.
void paintIcon(QPainter& painter, const QRect& place, const QPixmap& icon, const Palette& palette) {
    if (!icon.isNull()) {
        painter.drawPixmap(place, icon);
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.primaryAt(0.06));
    painter.drawRoundedRect(place, cornerRadius, cornerRadius);
}

struct Line {
    QString words;
    QFont font;
    QColor colour;
};

void paintLine(QPainter& painter, const QRect& place, Qt::Alignment where, const Line& line) {
    painter.setFont(line.font);
    painter.setPen(line.colour);
    const QString shown = QFontMetrics(line.font).elidedText(line.words, Qt::ElideRight, place.width());
    painter.drawText(place, static_cast<int>(where | Qt::AlignLeft) | Qt::TextSingleLine, shown);
}

} // namespace

AppListDelegate::AppListDelegate(ThemeSource& themes, AppIconCache& icons, QObject* parent)
    : QStyledItemDelegate(parent), m_themes(themes), m_icons(icons) {}

QSize AppListDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    const TextStyles& styles = m_themes.theme().styles;
    const int lines = QFontMetrics(styles.body).height() + QFontMetrics(styles.caption).height();
    const EdgeRoom edge = edgeRoom(index);
    return {0, edge.above + std::max(iconSize, lines) + 2 * verticalPadding + edge.below};
}

void AppListDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const Palette& palette = m_themes.theme().palette;
    const TextStyles& styles = m_themes.theme().styles;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const EdgeRoom edge = edgeRoom(index);
    const QRect whole = option.rect.adjusted(0, edge.above, 0, -edge.below);
    paintBackground(*painter, option, whole, palette);

    painter->setLayoutDirection(option.direction);
    const QRect row = whole.adjusted(inset + padding, verticalPadding, -inset - padding, -verticalPadding);
    const auto mirrored = [&](const QRect& place) {
        return QStyle::visualRect(option.direction, option.rect, place);
    };
    const std::string bundleID = index.data(AppListModel::bundleRole).toString().toStdString();
    const QRect icon(row.left(), row.center().y() - iconSize / 2, iconSize, iconSize);
    paintIcon(
        *painter, mirrored(icon), m_icons.pixmap(bundleID, iconSize, painter->device()->devicePixelRatioF()),
        palette);

    const QRect text = mirrored(row.adjusted(iconSize + gap, 0, 0, 0));
    paintLine(*painter, text, Qt::AlignTop, {index.data().toString(), styles.body, palette.primary});
    paintLine(
        *painter, text, Qt::AlignBottom,
        {index.data(AppListModel::captionRole).toString(), styles.caption, palette.secondary});
    painter->restore();
}

} // namespace quillon
