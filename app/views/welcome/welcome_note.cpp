#include "welcome_note.h"

#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/symbol_view.h>

#include <QHBoxLayout>
#include <QPainter>

namespace quillon {

namespace {

constexpr double cornerRadius = 9;
constexpr int sidePadding = 12;
constexpr int endPadding = 10;
constexpr int gap = 10;
constexpr int buttonGap = 6;

} // namespace

WelcomeNote::WelcomeNote(ThemeSource& themeSource, Symbol symbol, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_background(cornerRadius),
      m_text(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.callout; }, &Palette::primary, this)),
      m_action(new PlainButton(themeSource, {}, this)) {
    m_text->setWordWrap(true);
    m_text->setContentsMargins(focusRingRoom, 0, 0, 0);
    m_action->hide();
    connect(m_action, &QPushButton::clicked, this, &WelcomeNote::actionPressed);

    auto* column = new QVBoxLayout;
    column->setSpacing(buttonGap);
    column->addWidget(m_text);
    column->addWidget(m_action, 0, Qt::AlignLeft);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(sidePadding, endPadding, sidePadding, endPadding);
    row->setSpacing(gap - focusRingRoom);
    row->addWidget(
        new SymbolView(themeSource, symbol, themeSource.theme().symbolSize() + 2, &Palette::badgeText, this),
        0, Qt::AlignTop);
    row->addLayout(column, 1);
}

void WelcomeNote::setAction(const QString& label) {
    m_action->setText(label);
    m_action->updateGeometry();
    m_action->setVisible(!label.isEmpty());
}

void WelcomeNote::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Palette& palette = theme().palette;
    m_background.paint(painter, QRectF(contentsRect()), palette.badge, Qt::transparent);
}

} // namespace quillon
