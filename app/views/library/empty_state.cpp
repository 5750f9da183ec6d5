#include "empty_state.h"

#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int padding = 20;
constexpr int spacing = 10;
constexpr int symbolSize = 34;

} // namespace

EmptyState::EmptyState(ThemeSource& themeSource, Symbol symbol, const QString& title, QWidget* parent)
    : ThemedWidget(themeSource, parent),
      m_text(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, this)) {
    auto* const heading = new ThemedLabel(
        themeSource, [](const TextStyles& styles) { return bold(styles.title2); }, &Palette::primary, this);
    heading->setText(title);
    heading->setWordWrap(true);
    heading->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_text->hide();

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(spacing);
    column->addStretch(4);
    column->addWidget(
        new SymbolView(themeSource, symbol, symbolSize, &Palette::secondary, this), 0, Qt::AlignHCenter);
    column->addWidget(heading);
    column->addWidget(m_text);
    column->addStretch(5);
}

void EmptyState::setText(const QString& text) {
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
}

} // namespace quillon
