#pragma once

#include <quillon/app/core/practice_round.h>
#include <quillon/app/views/components/keys_view.h>
#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>

namespace quillon {

/// The command that is asked for, and what is said of the answer. It has the keyboard while it waits, so that
/// no button is pressed by mistake and a screen reader reads the question.
class QuestionCard : public ThemedWidget {
    Q_OBJECT

  public:
    explicit QuestionCard(ThemeSource& themes, QWidget* parent = nullptr);

    /// Shows the round's question and its answer; there is one.
    void show(const PracticeRound& round);
    /// What is said of the answer, as it is read aloud; that the question waits when it does.
    QString verdict() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    ThemedLabel* m_menu;
    ThemedLabel* m_command;
    SymbolView* m_sign;
    ThemedLabel* m_verdict;
    KeysView* m_keys;
};

} // namespace quillon
