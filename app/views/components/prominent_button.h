#pragma once

#include "theme_source.h"

#include <QPushButton>

namespace quillon {

/// The button that a window wants to be pressed, in the accent colour.
class ProminentButton : public QPushButton {
    Q_OBJECT

  public:
    ProminentButton(ThemeSource& themes, const QString& label, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
    QSize sizeHint() const override;

  private:
    void follow();

    ThemeSource& m_themes;
    Subscription m_subscription;
};

} // namespace quillon
