#include "message_view.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr int usualPadding = 30;
constexpr int spacing = 12;
constexpr int symbolSize = 34;
constexpr int widestBody = 440;
constexpr int bodyStretch = 1000;

} // namespace

MessageView::MessageView(ThemeSource& themeSource, QWidget* parent)
    : MessageView(
        themeSource, [](const TextStyles& styles) { return styles.title; }, usualPadding, parent) {}

MessageView::MessageView(
    ThemeSource& themeSource, ThemedLabel::FontChoice title, int padding, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_padding(padding),
      m_symbol(new SymbolView(themeSource, Symbol::keyboard, symbolSize, &Palette::secondary, this)),
      m_title(new ThemedLabel(themeSource, std::move(title), &Palette::primary, this)),
      m_body(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, this)),
      m_action(new ProminentButton(themeSource, {}, this)) {
    m_title->setAlignment(Qt::AlignCenter);
    m_body->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_body->setWordWrap(true);
    m_body->setMaximumWidth(widestBody);
    m_body->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_action->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_action, &QPushButton::clicked, this, &MessageView::actionPressed);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(spacing);
    column->addStretch(4);
    column->addWidget(m_symbol, 0, Qt::AlignHCenter);
    column->addWidget(m_title);
    // As wide as there is room, and in the middle where there is more than it takes.
    auto* bodyRow = new QHBoxLayout;
    bodyRow->addStretch(1);
    bodyRow->addWidget(m_body, bodyStretch);
    bodyRow->addStretch(1);
    column->addLayout(bodyRow);
    column->addWidget(m_action, 0, Qt::AlignHCenter);
    column->addStretch(5);
}

void MessageView::setMessage(const MessageWords& message) {
    m_symbol->setVisible(message.symbol.has_value());
    if (message.symbol)
        m_symbol->setSymbol(*message.symbol);
    m_title->setText(message.title);
    m_title->setShortenedPart(message.shortened);
    m_title->setWordWrap(message.shortened == TextPart());
    m_body->setText(message.body);
    fitBody();
    m_body->setVisible(!message.body.isEmpty());
    m_action->setText(message.action);
    m_action->setVisible(!message.action.isEmpty());
}

void MessageView::fitBody() {
    const int room = contentsRect().width() - 2 * m_padding;
    m_body->setFixedHeight(std::max(0, m_body->heightForWidth(std::clamp(room, 1, widestBody))));
}

void MessageView::resizeEvent(QResizeEvent* event) {
    fitBody();
    ThemedWidget::resizeEvent(event);
}

void MessageView::themeChanged() {
    fitBody();
    ThemedWidget::themeChanged();
}

} // namespace quillon
