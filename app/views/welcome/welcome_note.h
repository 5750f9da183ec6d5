#pragma once

#include <quillon/app/views/components/plain_button.h>
#include <quillon/app/views/components/rounded_background.h>
#include <quillon/app/views/components/symbols.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>

namespace quillon {

/// Something that this desktop or this moment asks the user to know: a card with a symbol, a text and, where
/// something can be done about it at once, a button.
class WelcomeNote : public ThemedWidget {
    Q_OBJECT

  public:
    WelcomeNote(ThemeSource& themes, Symbol symbol, QWidget* parent = nullptr);

    void setText(const QString& text) { m_text->setText(text); }
    QString text() const { return m_text->text(); }
    /// "" for no button.
    void setAction(const QString& label);

  Q_SIGNALS:
    void actionPressed();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    RoundedBackground m_background;
    ThemedLabel* m_text;
    PlainButton* m_action;
};

} // namespace quillon
