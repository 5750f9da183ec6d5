#include "theme_source.h"

#include <quillon/app/languages/translated_keys.h>

#include <QApplication>
#include <QToolTip>

#include <utility>

namespace quillon {

ThemeSource::ThemeSource(Appearance& appearance)
    : m_appearance(appearance), m_toolkitFont(QApplication::font()),
      m_toolkitPalette(QApplication::palette()), m_theme(Theme::fromLook(appearance.look(), m_toolkitFont)) {
    applyToToolkit();
    m_subscription = appearance.onChanged([this] { lookChanged(); });
}

ThemeSource::~ThemeSource() {
    QApplication::setFont(m_toolkitFont);
    QApplication::setPalette(m_toolkitPalette);
}

void ThemeSource::lookChanged() {
    Theme theme = Theme::fromLook(m_appearance.look(), m_toolkitFont);
    theme.keyNames = m_theme.keyNames;
    wear(std::move(theme));
}

void ThemeSource::setKeyLabels(KeyLabels labels) {
    const bool isNamed = m_theme.keyNames != nullptr;
    if (isNamed == (labels == KeyLabels::names))
        return;
    Theme theme = m_theme;
    theme.keyNames = isNamed ? nullptr : std::make_shared<const KeyNames>(translatedKeyNames());
    wear(std::move(theme));
}

void ThemeSource::wear(Theme theme) {
    if (theme == m_theme)
        return;
    m_theme = std::move(theme);
    applyToToolkit();
    changed.emit();
}

void ThemeSource::applyToToolkit() const {
    const QPalette palette = m_theme.palette.forToolkit();
    QApplication::setPalette(palette);
    QApplication::setFont(m_theme.styles.body);
    QToolTip::setPalette(palette);
    QToolTip::setFont(m_theme.styles.callout);
}

} // namespace quillon
