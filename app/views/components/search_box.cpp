#include "search_box.h"

#include "accessible_roles.h"
#include "styled_menu.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int horizontalPadding = 10;
constexpr int verticalPadding = 7;
constexpr int spacing = 6;
constexpr double cornerRadius = 9;
constexpr double borderWidth = 0.5;
constexpr double focusRingWidth = 1.5;

} // namespace

SearchBox::SearchBox(ThemeSource& themeSource, const QString& prompt, QWidget* parent)
    : ThemedWidget(themeSource, parent),
      m_magnifier(new SymbolView(
          themeSource, Symbol::magnifyingGlass, theme().symbolSize(), &Palette::secondary, this)),
      m_field(new QLineEdit(this)), m_clear(new QToolButton(this)) {
    readAs(*this, ReadAs::group);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(horizontalPadding, verticalPadding, horizontalPadding, verticalPadding);
    row->setSpacing(spacing);
    row->addWidget(m_magnifier);
    row->addWidget(m_field, 1);
    row->addWidget(m_clear);

    m_field->setFrame(false);
    m_field->setPlaceholderText(prompt);
    m_field->setAccessibleName(prompt);
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::textEdited, this, &SearchBox::textEdited);
    connect(m_field, &QLineEdit::textChanged, this, &SearchBox::followText);

    m_clear->setAutoRaise(true);
    m_clear->setFocusPolicy(Qt::NoFocus);
    m_clear->setAccessibleName(QCoreApplication::translate("SearchBox", "Clear search"));
    m_clear->setCursor(Qt::ArrowCursor);
    m_clear->setStyleSheet(u"QToolButton { border: none; padding: 0; background: transparent; }"_s);
    m_clear->hide();
    connect(m_clear, &QToolButton::clicked, this, &SearchBox::clear);

    setFocusProxy(m_field);
    wearTheme();
}

void SearchBox::setText(const QString& text) {
    if (text != m_field->text())
        m_field->setText(text);
}

void SearchBox::focus() {
    m_field->setFocus(Qt::OtherFocusReason);
}

void SearchBox::type(QKeyEvent* event) {
    focus();
    QCoreApplication::sendEvent(m_field, event);
}

void SearchBox::clear() {
    m_field->clear();
    focus();
    Q_EMIT textEdited(QString());
}

void SearchBox::followText(const QString& text) {
    m_clear->setVisible(!text.isEmpty());
}

void SearchBox::wearTheme() {
    m_field->setFont(theme().styles.body);
    QPalette colours = theme().palette.forToolkit();
    colours.setColor(QPalette::Base, Qt::transparent);
    m_field->setPalette(colours);
    const int size = theme().symbolSize();
    m_magnifier->setSize(size);
    m_clear->setIconSize(QSize(size, size));
    m_clear->setIcon(
        symbolPixmap(Symbol::xmarkCircleFill, size, theme().palette.secondary, devicePixelRatioF()));
}

void SearchBox::themeChanged() {
    wearTheme();
    ThemedWidget::themeChanged();
}

void SearchBox::mousePressEvent(QMouseEvent* event) {
    focus();
    event->ignore();
}

void SearchBox::showMenu(const QPoint& globalPosition) {
    Q_EMIT menuOpening();
    closeMenu();
    m_menu = m_field->createStandardContextMenu();
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    styleMenu(*m_menu, theme());
    m_menu->popup(globalPosition);
}

void SearchBox::closeMenu() {
    if (m_menu)
        m_menu->close();
}

bool SearchBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu) {
        showMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return ThemedWidget::eventFilter(watched, event);
}

void SearchBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = theme().palette;
    const bool focused = isFocused();
    const double line = focused ? focusRingWidth : borderWidth;
    painter.setPen(focused ? QPen(palette.focusRing, line) : QPen(palette.primaryAt(0.10), line));
    painter.setBrush(palette.primaryAt(0.06));
    const QRectF box = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.drawRoundedRect(box, cornerRadius, cornerRadius);
}

} // namespace quillon
