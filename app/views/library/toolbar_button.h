#pragma once

#include <quillon/app/views/components/symbols.h>
#include <quillon/app/views/components/themed_button.h>

namespace quillon {

/// A button of the toolbar: a symbol and a label, and an arrow where it opens a menu.
class ToolbarButton : public ThemedButton {
    Q_OBJECT

  public:
    ToolbarButton(ThemeSource& themes, Symbol symbol, const QString& label, QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    Colours colours(const Palette& palette) const override;
    QFont labelFont(const TextStyles& styles) const override { return styles.body; }
    void paintEvent(QPaintEvent* event) override;

  private:
    ThemeSource& m_themes;
    Symbol m_symbol;
};

} // namespace quillon
