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
    void paintBody(QPainter& painter, const QRectF& edge) const;
    void paintSymbol(QPainter& painter) const;
    void paintLabel(QPainter& painter) const;
    void paintMenuArrow(QPainter& painter) const;
    /// Where symbol, label and arrow are.
    QRect contents() const;
    /// A place among the contents, on the other side where people read from right to left.
    QRect mirrored(const QRect& place) const;
    /// What the arrow takes, with its distance from the label; 0 without a menu.
    int arrowRoom() const;

    ThemeSource& m_themes;
    Symbol m_symbol;
};

} // namespace quillon
