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

} // namespace

AppListDelegate::AppListDelegate(ThemeSource& themes, AppIconCache& icons, QObject* parent)
    : QStyledItemDelegate(parent), m_themes(themes), m_icons(icons) {}

QSize AppListDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    const TextStyles& styles = m_themes.theme().styles;
    const int lines = QFontMetrics(styles.body).height() + QFontMetrics(styles.caption).height();
    return {0, std::max(iconSize, lines) + 2 * verticalPadding};
}

void AppListDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const Theme& theme = m_themes.theme();
    const Palette& palette = theme.palette;
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF background = QRectF(option.rect).adjusted(inset, 1, -inset, -1);
    if (isChosen || option.state.testFlag(QStyle::State_MouseOver)) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(isChosen ? palette.primaryAt(0.12) : palette.hover);
        painter->drawRoundedRect(background, cornerRadius, cornerRadius);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter->setPen(QPen(palette.focusRing, 1.5));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(background.adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    }

    painter->setLayoutDirection(option.direction);
    const QRect row =
        option.rect.adjusted(inset + padding, verticalPadding, -inset - padding, -verticalPadding);
    const auto mirrored = [&](const QRect& place) {
        return QStyle::visualRect(option.direction, option.rect, place);
    };
    const QRect icon = mirrored(QRect(row.left(), row.center().y() - iconSize / 2, iconSize, iconSize));
    const std::string bundleID = index.data(AppListModel::bundleRole).toString().toStdString();
    if (const QPixmap pixmap = m_icons.pixmap(bundleID, iconSize, painter->device()->devicePixelRatioF());
        !pixmap.isNull()) {
        painter->drawPixmap(icon, pixmap);
    } else {
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette.primaryAt(0.06));
        painter->drawRoundedRect(icon, cornerRadius, cornerRadius);
    }

    const QRect text = mirrored(row.adjusted(iconSize + gap, 0, 0, 0));
    const auto line = [&](const QFont& font, const QColor& colour, const QString& words,
                          Qt::Alignment where) {
        painter->setFont(font);
        painter->setPen(colour);
        const QString shown = QFontMetrics(font).elidedText(words, Qt::ElideRight, text.width());
        painter->drawText(text, static_cast<int>(where | Qt::AlignLeft) | Qt::TextSingleLine, shown);
    };
    line(theme.styles.body, palette.primary, index.data().toString(), Qt::AlignTop);
    line(
        theme.styles.caption, palette.secondary, index.data(AppListModel::captionRole).toString(),
        Qt::AlignBottom);
    painter->restore();
}

} // namespace quillon
