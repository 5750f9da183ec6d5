#pragma once

#include "theme_source.h"

#include <QComboBox>

namespace quillon {

/// One of a few choices, which open below each other. What is longer than a line is cut short.
class DropDown : public QComboBox {
    Q_OBJECT

  public:
    explicit DropDown(ThemeSource& themes, QWidget* parent = nullptr);

    /// The choice as it is shown in the room that it has.
    QString shownText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void follow();
    QRectF body() const;
    void styleList();

    ThemeSource& m_themes;
    Subscription m_subscription;
};

} // namespace quillon
