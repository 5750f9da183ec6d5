#include "confirmation.h"

#include "focus_ring.h"
#include "symbol_view.h"
#include "themed_label.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int padding = 22;
constexpr int symbolSize = 34;
constexpr int symbolGap = 16;
constexpr int titleGap = 8;
constexpr int buttonsGap = 20;
constexpr int betweenButtons = 6;
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

Confirmation::Confirmation(ThemeSource& themes, const ConfirmationWords& words, QWidget* parent)
    : QDialog(parent), m_destroy(new DestructiveButton(themes, words.destroy, this)),
      m_cancel(new PlainButton(themes, words.cancel, this)) {
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAccessibleName(words.title);
    setAccessibleDescription(words.message);
    setModal(true);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(titleGap);
    texts->addWidget(paragraph(
        themes, [](const TextStyles& styles) { return semibold(styles.title2); }, &Palette::primary,
        words.title, this));
    texts->addWidget(paragraph(
        themes, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, words.message,
        this));
    texts->addStretch(1);
    auto* top = new QHBoxLayout;
    top->setContentsMargins(0, 0, focusRingRoom, 0);
    top->setSpacing(symbolGap);
    top->addWidget(
        new SymbolView(themes, Symbol::exclamationMarkTriangle, symbolSize, &Palette::badgeText, this), 0,
        Qt::AlignTop);
    top->addLayout(texts, 1);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(betweenButtons);
    buttons->addStretch(1);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_destroy);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding - focusRingRoom, padding - focusRingRoom);
    column->setSpacing(buttonsGap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(top);
    column->addLayout(buttons);

    m_cancel->setDefault(true);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_destroy, &QPushButton::clicked, this, &QDialog::accept);
    setTabOrder(m_cancel, m_destroy);
}

void Confirmation::showEvent(QShowEvent* event) {
    m_cancel->setFocus();
    QDialog::showEvent(event);
}

} // namespace quillon
