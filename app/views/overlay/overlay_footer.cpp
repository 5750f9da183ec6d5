#include "overlay_footer.h"

#include "overlay_texts.h"

#include <QHBoxLayout>

#include <algorithm>

namespace quillon {

namespace {

constexpr int spacing = 10;
/// Between the hint and the command.
constexpr int middleGap = 24;
/// A shorter piece of a title says nothing.
constexpr int shortestCommand = 90;

} // namespace

OverlayFooter::OverlayFooter(ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent),
      m_symbol(
          new SymbolView(themeSource, Symbol::keyboard, theme().symbolSize(), &Palette::secondary, this)),
      m_hint(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this)),
      m_mostClicked(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this)),
      m_command(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return semibold(styles.callout); }, &Palette::primary,
          this)),
      m_keys(new KeysView(themeSource, std::nullopt, theme().keySize(), CapEmphasis::plain, this)) {
    m_mostClicked->setText(OverlayTexts::mostClicked());

    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    row->addWidget(m_symbol);
    row->addWidget(m_hint);
    row->addStretch(1);
    row->addWidget(m_mostClicked);
    row->addWidget(m_command);
    row->addWidget(m_keys);
    setMostClicked(std::nullopt);
    wearTheme();
}

void OverlayFooter::setHint(const QString& hint) {
    m_hint->setText(hint);
    share();
}

void OverlayFooter::setMostClicked(const std::optional<MostClicked>& command) {
    m_shown = command;
    if (command) {
        m_command->setText(command->title);
        m_keys->setShortcut(command->shortcut);
    }
    share();
}

void OverlayFooter::share() {
    const int others = m_symbol->sizeHint().width() + m_hint->sizeHint().width() + middleGap
                       + m_mostClicked->sizeHint().width() + m_keys->sizeHint().width() + 3 * spacing;
    const int room = contentsRect().width() - others;
    const int wanted = m_command->sizeHint().width();
    const bool isShown = m_shown && room >= std::min(wanted, shortestCommand);
    m_mostClicked->setVisible(isShown);
    m_command->setVisible(isShown);
    m_keys->setVisible(isShown);
    if (isShown)
        m_command->setFixedWidth(std::min(wanted, room));
}

void OverlayFooter::wearTheme() {
    m_symbol->setSize(theme().symbolSize());
    m_keys->setSize(theme().keySize());
    // The row keeps its height whether or not there are keys in it.
    setMinimumHeight(std::max(m_keys->sizeHint().height(), m_symbol->sizeHint().height()));
    share();
}

void OverlayFooter::themeChanged() {
    wearTheme();
    ThemedWidget::themeChanged();
}

void OverlayFooter::resizeEvent(QResizeEvent* event) {
    ThemedWidget::resizeEvent(event);
    share();
}

} // namespace quillon
