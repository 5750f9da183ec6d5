#pragma once

#include "themed_button.h"

namespace quillon {

/// The button that a window wants to be pressed, in the accent colour.
class ProminentButton : public ThemedButton {
    Q_OBJECT

  public:
    ProminentButton(ThemeSource& themes, const QString& label, QWidget* parent = nullptr)
        : ThemedButton(themes, label, parent) {}

  protected:
    Colours colours(const Palette& palette) const override;
    QFont labelFont(const TextStyles& styles) const override;
};

} // namespace quillon
