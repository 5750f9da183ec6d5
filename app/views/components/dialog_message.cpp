#include "dialog_message.h"

#include "symbol_view.h"
#include "themed_label.h"

#include <QVBoxLayout>

#include <utility>

namespace quillon {

namespace {

constexpr int symbolSize = 34;
constexpr int symbolGap = 16;
constexpr int titleGap = 8;
constexpr double textEms = 33;

ThemedLabel* paragraph(
    ThemeSource& themes, ThemedLabel::FontChoice font, QColor Palette::*colour, const QString& text,
    QWidget* parent) {
    auto* label = new ThemedLabel(themes, std::move(font), colour, parent);
    label->setText(text);
    label->setWordWrap(true);
    label->setMinimumWidth(static_cast<int>(textEms * pixelSize(themes.theme().styles.body)));
    return label;
}

} // namespace

QHBoxLayout* dialogMessage(
    ThemeSource& themes, Symbol symbol, const QString& title, const QString& message, QWidget* dialog) {
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(titleGap);
    texts->addWidget(paragraph(
        themes, [](const TextStyles& styles) { return semibold(styles.title2); }, &Palette::primary, title,
        dialog));
    texts->addWidget(paragraph(
        themes, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, message, dialog));
    texts->addStretch(1);
    auto* const row = new QHBoxLayout;
    row->setSpacing(symbolGap);
    row->addWidget(new SymbolView(themes, symbol, symbolSize, &Palette::badgeText, dialog), 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    return row;
}

} // namespace quillon
