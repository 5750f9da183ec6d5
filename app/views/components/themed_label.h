#pragma once

#include "theme_source.h"

#include <QLabel>

#include <functional>

namespace quillon {

/// Plain text in one of the theme's styles. One line of it ends in an ellipsis where it does not fit, and
/// tells the whole text in a tooltip.
class ThemedLabel : public QLabel {
    Q_OBJECT

  public:
    using FontChoice = std::function<QFont(const TextStyles&)>;

    ThemedLabel(ThemeSource& themes, FontChoice font, QColor Palette::*colour, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void follow();
    bool isElided() const;

    ThemeSource& m_themes;
    FontChoice m_font;
    QColor Palette::*m_colour;
    Subscription m_subscription;
};

} // namespace quillon
