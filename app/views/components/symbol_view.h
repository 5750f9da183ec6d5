#pragma once

#include "symbols.h"
#include "themed_widget.h"

namespace quillon {

/// A symbol as decoration: screen readers pass over it.
class SymbolView : public ThemedWidget {
    Q_OBJECT

  public:
    /// `size` in logical pixels; taller room is filled evenly.
    SymbolView(
        ThemeSource& themes, Symbol symbol, int size, QColor Palette::*colour, QWidget* parent = nullptr);

    Symbol symbol() const { return m_symbol; }
    void setSymbol(Symbol symbol);
    void setSize(int size);

    QSize sizeHint() const override { return {m_size, m_size}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Symbol m_symbol;
    int m_size;
    QColor Palette::*m_colour;
};

} // namespace quillon
