#include "theme_source.h"

#include <QApplication>
#include <QToolTip>

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
