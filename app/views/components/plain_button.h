#pragma once

#include "themed_button.h"

namespace quillon {

/// A button beside which another one, or none, is the one to be pressed.
class PlainButton : public ThemedButton {
    Q_OBJECT

  public:
    PlainButton(ThemeSource& themes, const QString& label, QWidget* parent = nullptr)
        : ThemedButton(themes, label, parent) {}

  protected:
    Colours colours(const Palette& palette) const override;
    QFont labelFont(const TextStyles& styles) const override;
};

} // namespace quillon
