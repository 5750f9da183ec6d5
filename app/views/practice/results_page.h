#pragma once

#include <quillon/app/core/practice_round.h>
#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/scroll_pane.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>

#include <span>

namespace quillon {

/// How a practice round ended: how much was right, and what was missed.
class ResultsPage : public ThemedWidget {
    Q_OBJECT

  public:
    explicit ResultsPage(ThemeSource& themes, QWidget* parent = nullptr);

    /// Shows the results of a round that is over.
    void show(const PracticeRound& round);
    void focusButton() { m_button->setFocus(); }

  Q_SIGNALS:
    void anotherRoundWanted();

  private:
    QWidget* missedRows(std::span<const MenuEntry> missed);

    ThemedLabel* m_score;
    ThemedLabel* m_sentence;
    ScrollPane* m_missed;
    ProminentButton* m_button;
};

} // namespace quillon
