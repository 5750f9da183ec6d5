#pragma once

#include "key_caps.h"
#include "themed_widget.h"

#include <optional>

namespace quillon {

/// What screen readers are told where a shortcut is shown: "⌃⇧," by symbols, "Ctrl Shift Comma" by names.
QString keysText(const Shortcut& shortcut, const Theme& theme);

/// A shortcut as a row of key caps; to a screen reader one text.
class KeysView : public ThemedWidget {
    Q_OBJECT

  public:
    /// `size` is the caps' font size in logical pixels. Without a shortcut there are no caps, but their
    /// height.
    KeysView(
        ThemeSource& themes, std::optional<Shortcut> shortcut, double size,
        CapEmphasis emphasis = CapEmphasis::plain, QWidget* parent = nullptr);

    const std::optional<Shortcut>& shortcut() const { return m_shortcut; }
    void setShortcut(Shortcut shortcut);
    void setSize(double size);

    QSize sizeHint() const override;
    /// From the top of the caps down to the line that their text stands on, in logical pixels; no whole
    /// number where device pixels are smaller.
    double baseline() const { return m_caps.baseline(devicePixelRatioF()); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void themeChanged() override;

  private:
    void name();

    std::optional<Shortcut> m_shortcut;
    double m_size;
    CapEmphasis m_emphasis;
    KeyCaps m_caps;
};

} // namespace quillon
