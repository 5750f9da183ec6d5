#pragma once

#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>

namespace quillon {

/// In place of what is not there yet: a symbol, a title, and what to do about it.
class EmptyState : public ThemedWidget {
    Q_OBJECT

  public:
    EmptyState(ThemeSource& themes, Symbol symbol, const QString& title, QWidget* parent = nullptr);

    /// "" for none.
    void setText(const QString& text);

  private:
    ThemedLabel* m_text;
};

} // namespace quillon
