#pragma once

#include "message_words.h"
#include "prominent_button.h"
#include "symbol_view.h"
#include "themed_label.h"
#include "themed_widget.h"

namespace quillon {

/// A state told in words, in the middle: symbol, title, sentence and button, as far as there are any.
class MessageView : public ThemedWidget {
    Q_OBJECT

  public:
    /// For a whole window.
    explicit MessageView(ThemeSource& themes, QWidget* parent = nullptr);
    /// With less around it and another title, for a part of one.
    MessageView(ThemeSource& themes, ThemedLabel::FontChoice title, int padding, QWidget* parent = nullptr);

    void setMessage(const MessageWords& message);

  Q_SIGNALS:
    void actionPressed();

  protected:
    void themeChanged() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitBody();

    int m_padding;
    SymbolView* m_symbol;
    ThemedLabel* m_title;
    ThemedLabel* m_body;
    ProminentButton* m_action;
};

} // namespace quillon
