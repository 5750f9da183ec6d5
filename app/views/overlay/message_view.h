#pragma once

#include "overlay_texts.h"

#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>

namespace quillon {

/// A state told in words, in the middle: symbol, title, sentence and button, as far as there are any.
class MessageView : public ThemedWidget {
    Q_OBJECT

  public:
    explicit MessageView(ThemeSource& themes, QWidget* parent = nullptr);

    void setMessage(const OverlayMessage& message);

  Q_SIGNALS:
    void actionPressed();

  protected:
    void themeChanged() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitBody();

    SymbolView* m_symbol;
    ThemedLabel* m_title;
    ThemedLabel* m_body;
    ProminentButton* m_action;
};

} // namespace quillon
