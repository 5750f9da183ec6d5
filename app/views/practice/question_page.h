#pragma once

#include "keyboard_view.h"
#include "progress_dots.h"
#include "question_card.h"

#include <quillon/app/core/practice_round.h>
#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <optional>

namespace quillon {

/// One question of a practice round: how far the round is, the question, the keyboard on which the answer
/// lights up, and what can be done.
class QuestionPage : public ThemedWidget {
    Q_OBJECT

  public:
    explicit QuestionPage(ThemeSource& themes, QWidget* parent = nullptr);

    /// Shows the round's question; there is one. `pressed` is what was answered, where it was a press.
    void show(const PracticeRound& round, const std::optional<Shortcut>& pressed);
    /// Gives the keyboard to the question while it waits, else to the button.
    void takeFocus();
    /// One quiet line about the keyboard; "" for none.
    void setHint(const QString& hint) { m_hint->setText(hint); }
    void setPrinted(PrintedKeys printed) { m_keyboard->setPrinted(std::move(printed)); }

  Q_SIGNALS:
    /// The answer is wanted, or, once the question is answered, what comes next.
    void buttonPressed();

  private:
    ProgressDots* m_dots;
    ThemedLabel* m_progress;
    QuestionCard* m_card;
    KeyboardView* m_keyboard;
    ThemedLabel* m_hint;
    ProminentButton* m_button;
    bool m_isWaiting = false;
};

} // namespace quillon
