#pragma once

#include "answer_input.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/core/practice_round.h>
#include <quillon/app/views/components/drop_down.h>
#include <quillon/app/views/components/message_view.h>
#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/themed_widget.h>
#include <quillon/app/views/sheet/named_apps.h>
#include <quillon/kit/coach/practice_deck.h>

#include <QStackedLayout>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

class QuestionPage;
class ResultsPage;

/// Short quizzes on the shortcuts of one application: a command is shown, and the user presses what they
/// think its shortcut is. It follows the model where practice is asked for an application: another one than
/// that of the round that runs ends the round, of which every answer is recorded already.
class PracticeView : public ThemedWidget {
    Q_OBJECT

  public:
    /// Draws the commands of a round from an application's sheet; none where there is nothing to ask.
    using Draw = std::function<std::vector<MenuEntry>(
        const AppSheet& sheet, const UsageRecords& usage, const PracticeDeck::Ids& pinned)>;

    /// Ten commands by chance, those that are clicked and missed most the likeliest.
    static Draw drawByChance();

    /// All of it outlives the view.
    PracticeView(
        AppModel& model, ThemeSource& themes, AnswerInput::Needs keyboard, Draw draw = drawByChance(),
        QWidget* parent = nullptr);
    ~PracticeView() override;

    /// The application that is practised; empty when there is none.
    const std::string& appID() const { return m_appID; }
    const PracticeRound& round() const { return m_round; }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* makeStart();
    void layOut();
    void tellHowToBegin();
    void followSheets();
    void choose(const std::string& appID);
    void newRound();
    void pressButton();
    void take(const KeyStroke& stroke);
    void followRequest();
    void tellGrip();
    void followKeyboard();
    void record(const PracticeResult& result);
    void refresh();
    void takeFocus();
    void showPage(QWidget* page);

    AppModel& m_model;
    Draw m_draw;
    std::string m_appID;
    PracticeRound m_round;
    std::optional<Shortcut> m_lastPress; ///< of the round
    KeyReading& m_keys;
    QWidget* m_practice;
    MessageView* m_empty;
    DropDown* m_apps;
    std::vector<NamedApp> m_choices;
    ThemedLabel* m_startText;
    ProminentButton* m_startButton;
    QWidget* m_start;
    QuestionPage* m_question;
    ResultsPage* m_results;
    QStackedLayout* m_pages;
    AnswerInput m_input;
    Subscription m_modelChange;
};

} // namespace quillon
