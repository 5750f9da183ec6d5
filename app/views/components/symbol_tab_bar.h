#pragma once

#include "symbols.h"
#include "theme_source.h"

#include <QTabBar>

#include <vector>

namespace quillon {

/// Tabs side by side, each a symbol above its label.
class SymbolTabBar : public QTabBar {
    Q_OBJECT

  public:
    explicit SymbolTabBar(ThemeSource& themes, QWidget* parent = nullptr);

    /// Appends a tab.
    void addSymbolTab(Symbol symbol, const QString& label);

  protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;

  private:
    void follow();
    int symbolSize() const;
    void paintTab(QPainter& painter, int index) const;

    ThemeSource& m_themes;
    std::vector<Symbol> m_symbols;
    Subscription m_subscription;
};

} // namespace quillon
