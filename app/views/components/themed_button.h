#pragma once

#include "theme_source.h"

#include <QPushButton>

namespace quillon {

/// A button with a label in the program's own look. Return presses it too while it has the keyboard.
class ThemedButton : public QPushButton {
    Q_OBJECT

  public:
    /// Around what is seen of the button, for the ring that shows the keyboard's focus. In logical pixels.
    static constexpr int ringRoom = 3;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    struct Colours {
        QColor fill;
        QColor border; ///< transparent for none
        QColor text;
    };

    ThemedButton(ThemeSource& themes, const QString& label, QWidget* parent);

    virtual Colours colours(const Palette& palette) const = 0;
    virtual QFont labelFont(const TextStyles& styles) const = 0;

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void follow();

    ThemeSource& m_themes;
    Subscription m_subscription;
};

} // namespace quillon
