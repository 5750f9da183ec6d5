#pragma once

#include "key_caps.h"
#include "themed_widget.h"

#include <optional>

namespace quillon {

/// A shortcut as a row of key caps; to a screen reader one text.
class KeysView : public ThemedWidget {
    Q_OBJECT

  public:
    /// `size` is the caps' font size in logical pixels.
    KeysView(
        ThemeSource& themes, Shortcut shortcut, double size, CapEmphasis emphasis = CapEmphasis::plain,
        QWidget* parent = nullptr);

    const Shortcut& shortcut() const { return m_shortcut; }
    void setShortcut(Shortcut shortcut);
    void setSize(double size);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void themeChanged() override;

  private:
    Shortcut m_shortcut;
    double m_size;
    CapEmphasis m_emphasis;
    KeyCaps m_caps;
};

} // namespace quillon
