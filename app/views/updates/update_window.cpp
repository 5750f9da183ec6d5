#include "update_window.h"

#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/plain_button.h>
#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/symbols.h>

#include <utility>

namespace quillon {

namespace {

constexpr int padding = 24;
constexpr int markGap = 18;
constexpr int markSize = 56;
constexpr int lineGap = 6;
constexpr int partGap = 18;
constexpr int buttonGap = 8;
constexpr int textWidth = 430;

} // namespace

UpdateWindow::UpdateWindow(ThemeSource& themeSource, const UpdateTexts::Message& message)
    : m_themes(themeSource), m_mark(new QLabel(this)), m_column(new QVBoxLayout), m_buttons(new QHBoxLayout) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(UpdateTexts::windowTitle());
    setAccessibleName(message.title);
    setAccessibleDescription(message.text);

    auto* const title = new ThemedLabel(
        themeSource, [](const TextStyles& styles) { return bold(styles.title2); }, &Palette::primary, this);
    title->setText(message.title);
    title->setWordWrap(true);
    auto* const text = new ThemedLabel(
        themeSource, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, this);
    text->setText(message.text);
    text->setWordWrap(true);
    title->setMinimumWidth(textWidth);
    text->setMinimumWidth(textWidth);
    auto* const texts = new QVBoxLayout;
    texts->setContentsMargins(0, 0, focusRingRoom, 0);
    texts->setSpacing(lineGap);
    texts->addWidget(title);
    texts->addWidget(text);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(padding, padding, padding - focusRingRoom, padding - focusRingRoom);
    row->setSpacing(markGap);
    row->addWidget(m_mark, 0, Qt::AlignTop);
    row->addLayout(m_column, 1);
    m_column->setSpacing(partGap - focusRingRoom);
    m_column->addLayout(texts);
    m_column->addLayout(m_buttons);
    m_buttons->setSpacing(buttonGap);
    m_buttons->addStretch(1);

    m_subscription = themeSource.changed.subscribe([this] { themeChanged(); });
    themeChanged();
}

void UpdateWindow::addContent(QWidget* content) {
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(0, focusRingRoom, focusRingRoom, 0);
    line->addWidget(content);
    m_column->insertLayout(m_column->count() - 1, line, 1);
}

void UpdateWindow::addButton(const QString& label, std::function<void()> pressed) {
    add(new PlainButton(m_themes, label, this), std::move(pressed));
}

void UpdateWindow::addProminentButton(const QString& label, std::function<void()> pressed) {
    auto* const button = new ProminentButton(m_themes, label, this);
    button->setDefault(true);
    button->setFocus();
    add(button, std::move(pressed));
}

void UpdateWindow::add(QPushButton* button, std::function<void()> pressed) {
    connect(button, &QPushButton::clicked, this, [this, pressed = std::move(pressed)] {
        const auto then = pressed; // closing may delete the button
        accept();
        if (then)
            then();
    });
    m_buttons->addWidget(button);
}

void UpdateWindow::themeChanged() {
    setPalette(theme().palette.forToolkit());
    m_mark->setPixmap(productMark(markSize, devicePixelRatioF()));
}

} // namespace quillon
