#include "overlay_footer.h"

#include <QHBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int spacing = 10;
constexpr int symbolSize = 17;

} // namespace

OverlayFooter::OverlayFooter(ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent),
      m_hint(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this)),
      m_mostClicked(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this)),
      m_command(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return semibold(styles.callout); }, &Palette::primary,
          this)),
      m_keys(new KeysView(
          themeSource, Shortcut{{}, Key::special(SpecialKey::space)}, theme().keySize(), CapEmphasis::plain,
          this)) {
    m_mostClicked->setText(u"You click this one most:"_s);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    row->addWidget(new SymbolView(themeSource, Symbol::keyboard, symbolSize, &Palette::secondary, this));
    row->addWidget(m_hint);
    row->addStretch(1);
    row->addWidget(m_mostClicked);
    row->addWidget(m_command);
    row->addWidget(m_keys);
    setMostClicked(std::nullopt);
    follow();
}

void OverlayFooter::setHint(const QString& hint) {
    m_hint->setText(hint);
}

void OverlayFooter::setMostClicked(const std::optional<MostClicked>& command) {
    m_mostClicked->setVisible(command.has_value());
    m_command->setVisible(command.has_value());
    m_keys->setVisible(command.has_value());
    if (!command)
        return;
    m_command->setText(command->title);
    m_keys->setShortcut(command->shortcut);
}

void OverlayFooter::follow() {
    m_keys->setSize(theme().keySize());
    // The row keeps its height whether or not there are keys in it.
    setMinimumHeight(std::max(m_keys->sizeHint().height(), symbolSize));
}

void OverlayFooter::themeChanged() {
    follow();
    ThemedWidget::themeChanged();
}

} // namespace quillon
