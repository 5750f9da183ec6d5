#pragma once

#include "themed_button.h"

namespace quillon {

/// A button that takes something away for good.
class DestructiveButton : public ThemedButton {
    Q_OBJECT

  public:
    DestructiveButton(ThemeSource& themes, const QString& label, QWidget* parent = nullptr)
        : ThemedButton(themes, label, parent) {}

    /// Of its label. At least 4.5 : 1 on a card of the scheme.
    static QColor textColour(ColourScheme scheme);

  protected:
    Colours colours(const Palette& palette) const override;
    QFont labelFont(const TextStyles& styles) const override;
};

} // namespace quillon
