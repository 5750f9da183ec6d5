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
    : m_themes(themeSource), m_mark(new QLabel(this)), m_texts(new QVBoxLayout), m_buttons(new QHBoxLayout) {
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

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(padding, padding, padding - focusRingRoom, padding - focusRingRoom);
    row->setSpacing(markGap);
    row->addWidget(m_mark, 0, Qt::AlignTop);
    auto* const column = new QVBoxLayout;
    row->addLayout(column, 1);
    column->setSpacing(partGap);
    column->addLayout(m_texts, 1);
    column->addLayout(m_buttons);
    m_texts->setSpacing(lineGap);
    m_texts->setContentsMargins(0, 0, focusRingRoom, 0);
    m_texts->addWidget(title);
    m_texts->addWidget(text);
    m_buttons->setSpacing(buttonGap);
    m_buttons->addStretch(1);

    m_subscription = themeSource.changed.subscribe([this] { themeChanged(); });
    themeChanged();
}

void UpdateWindow::addContent(QWidget* content) {
    m_texts->addSpacing(partGap - lineGap);
    m_texts->addWidget(content, 1);
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
