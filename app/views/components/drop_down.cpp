#include "drop_down.h"

#include "colours.h"
#include "focus_ring.h"
#include "round_corners.h"

#include <QAbstractItemView>
#include <QFrame>
#include <QPainter>
#include <QPainterPath>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int sidePadding = 11;
constexpr int endPadding = 6;
constexpr int arrowsWidth = 8;
constexpr int arrowsGap = 10;
constexpr double cornerRadius = 8;
constexpr double edgeOpacity = 0.16;
constexpr double mostEms = 18; ///< for the text
constexpr int listRadius = 8;

/// Two small arrows, up and down.
void paintArrows(QPainter& painter, const QPointF& centre) {
    constexpr double halfWidth = arrowsWidth / 2.0 - 0.5;
    constexpr double height = 3.5;
    constexpr double gap = 2;
    for (const double direction : {-1.0, 1.0}) {
        QPainterPath arrow(centre + QPointF(-halfWidth, direction * gap));
        arrow.lineTo(centre + QPointF(0, direction * (gap + height)));
        arrow.lineTo(centre + QPointF(halfWidth, direction * gap));
        painter.drawPath(arrow);
    }
}

} // namespace

DropDown::DropDown(ThemeSource& themes, QWidget* parent) : QComboBox(parent), m_themes(themes) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // The plain delegate knows nothing of style sheets.
    setItemDelegate(new QStyledItemDelegate(this));
    view()->setTextElideMode(Qt::ElideRight);
    roundCorners(*view()->window(), listRadius);
    m_subscription = themes.changed.subscribe([this] { follow(); });
    follow();
}

void DropDown::follow() {
    setFont(m_themes.theme().styles.body);
    styleList();
    updateGeometry();
    update();
}

/// The list looks as menus do.
void DropDown::styleList() {
    const QString sheet =
        u"QAbstractItemView { background: %1; border: 1px solid %2; border-radius: %6px; padding: 4px; "
        "outline: 0; }"
        "QAbstractItemView::item { color: %3; padding: 5px 8px; border-radius: 5px; }"
        "QAbstractItemView::item:selected { background: %4; color: %5; }"_s;
    const Palette& palette = m_themes.theme().palette;
    view()->setStyleSheet(sheet.arg(
        Colours::css(palette.card), Colours::css(Colours::over(palette.windowBorder, palette.card)),
        Colours::css(palette.primary), Colours::css(palette.accent), Colours::css(palette.onAccent),
        QString::number(listRadius)));
}

void DropDown::showPopup() {
    if (auto* const box = qobject_cast<QFrame*>(view()->window()))
        box->setFrameShape(QFrame::NoFrame); // the list has its own
    QComboBox::showPopup();
}

QSize DropDown::sizeHint() const {
    // To the last bit: whole numbers are rounded, down as well, and a text without that bit is cut short.
    const QFontMetricsF metrics(m_themes.theme().styles.body);
    double widest = 0;
    for (int index = 0; index < count(); ++index)
        widest = std::max(widest, metrics.horizontalAdvance(itemText(index)));
    const int most = static_cast<int>(std::lround(mostEms * pixelSize(m_themes.theme().styles.body)));
    return {
        std::min(static_cast<int>(std::ceil(widest)), most) + 2 * sidePadding + arrowsGap + arrowsWidth
            + 2 * focusRingRoom,
        static_cast<int>(std::ceil(metrics.height())) + 2 * endPadding + 2 * focusRingRoom};
}

QRectF DropDown::body() const {
    return QRectF(rect()).adjusted(focusRingRoom, focusRingRoom, -focusRingRoom, -focusRingRoom);
}

QString DropDown::shownText() const {
    const double room = body().width() - 2 * sidePadding - arrowsGap - arrowsWidth;
    return QFontMetricsF(font()).elidedText(currentText(), Qt::ElideRight, room);
}

/// The page is scrolled, not what happens to lie under the pointer.
void DropDown::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void DropDown::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = m_themes.theme().palette;
    const QRectF body = this->body();
    painter.setBrush(Qt::NoBrush);
    if (hasFocus()) {
        painter.setPen(QPen(palette.focusRing, 1.5));
        painter.drawRoundedRect(body.adjusted(-2.25, -2.25, 2.25, 2.25), cornerRadius + 2, cornerRadius + 2);
    }
    painter.setPen(QPen(palette.primaryAt(edgeOpacity), 1));
    if (underMouse())
        painter.setBrush(palette.hover);
    painter.drawRoundedRect(body.adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius - 0.5, cornerRadius - 0.5);

    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    painter.setPen(palette.primary);
    const QRectF text = body.adjusted(sidePadding, 0, -sidePadding, 0);
    painter.drawText(
        text, static_cast<int>(Qt::AlignVCenter) | (isMirrored ? Qt::AlignRight : Qt::AlignLeft),
        shownText());
    painter.setPen(QPen(palette.secondary, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const double arrows = isMirrored ? text.left() + arrowsWidth / 2.0 : text.right() - arrowsWidth / 2.0;
    paintArrows(painter, QPointF(arrows, body.center().y()));
}

} // namespace quillon
