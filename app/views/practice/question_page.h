#pragma once

#include <quillon/app/core/practice_round.h>
#include <quillon/app/views/components/keys_view.h>
#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>

namespace quillon {

/// One question of a practice round: the command, and what is said of the answer.
class QuestionPage : public ThemedWidget {
    Q_OBJECT

  public:
    explicit QuestionPage(ThemeSource& themes, QWidget* parent = nullptr);

    /// Shows the round's question; there is one.
    void show(const PracticeRound& round);
    void focusButton() { m_button->setFocus(); }

  Q_SIGNALS:
    /// The answer is wanted, or, once the question is answered, what comes next.
    void buttonPressed();

  private:
    void showAnswer(const PracticeRound& round);

    ThemedLabel* m_progress;
    ThemedLabel* m_menu;
    ThemedLabel* m_command;
    SymbolView* m_rightSign;
    ThemedLabel* m_verdict;
    KeysView* m_keys;
    ProminentButton* m_button;
};

} // namespace quillon
