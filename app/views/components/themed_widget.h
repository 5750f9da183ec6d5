#pragma once

#include "theme_source.h"

#include <QWidget>

namespace quillon {

/// A widget that draws itself in the theme and follows its changes.
class ThemedWidget : public QWidget {
    Q_OBJECT

  public:
    explicit ThemedWidget(ThemeSource& themes, QWidget* parent = nullptr);

  protected:
    const Theme& theme() const { return m_themes.theme(); }
    ThemeSource& themes() const { return m_themes; }

    /// Another theme is in force. Measures itself and draws anew.
    virtual void themeChanged();

  private:
    ThemeSource& m_themes;
    Subscription m_subscription;
};

} // namespace quillon
