#pragma once

#include "theme.h"

#include <quillon/kit/base/subscription.h>
#include <quillon/kit/shortcut/key_labels.h>

namespace quillon {

/// The theme as it follows the desktop's look and the user's choice of how keys are shown. Widgets read
/// `theme` when they are made and again whenever `changed` is emitted.
class ThemeSource {
  public:
    /// The interface font of an `appearance` that tells none is the toolkit's. `appearance` outlives this.
    explicit ThemeSource(Appearance& appearance);
    /// Gives the toolkit its own font and colours back.
    ~ThemeSource();
    ThemeSource(const ThemeSource&) = delete;
    ThemeSource& operator=(const ThemeSource&) = delete;

    const Theme& theme() const { return m_theme; }

    /// How keys are shown from now on: symbols at first.
    void setKeyLabels(KeyLabels labels);

    /// Emitted after the theme became another one.
    Event<> changed;

  private:
    void lookChanged();
    void wear(Theme theme);
    void applyToToolkit() const;

    Appearance& m_appearance;
    QFont m_toolkitFont;
    QPalette m_toolkitPalette;
    Theme m_theme;
    Subscription m_subscription;
};

} // namespace quillon
