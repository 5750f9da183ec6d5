#pragma once

#include "theme_source.h"

#include <QCheckBox>

namespace quillon {

/// A check box that looks like a switch. It has no label of its own, but has to have an accessible name.
class SwitchControl : public QCheckBox {
    Q_OBJECT

  public:
    explicit SwitchControl(ThemeSource& themes, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;

  private:
    ThemeSource& m_themes;
    Subscription m_subscription;
};

} // namespace quillon
