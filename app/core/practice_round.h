#pragma once

#include <quillon/kit/menu/menu_entry.h>
#include <quillon/kit/shortcut/key_stroke.h>

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// How a question of a practice round was answered.
struct WrongAnswer {
    std::string pressed; ///< what was pressed, as it is shown
    bool operator==(const WrongAnswer&) const = default;
};
struct RightAnswer {
    bool operator==(const RightAnswer&) const = default;
};
/// The user had the answer shown; counts as wrong.
struct RevealedAnswer {
    bool operator==(const RevealedAnswer&) const = default;
};
using PracticeAnswer = std::variant<WrongAnswer, RightAnswer, RevealedAnswer>;

/// One command that was asked for.
struct PracticeResult {
    MenuEntry entry;
    bool correct = false;
    bool operator==(const PracticeResult&) const = default;
};

/// A round of questions, one after the other: waiting for its answer, answered, passed on from. After the
/// last come the results. A round without commands was never drawn.
class PracticeRound {
  public:
    PracticeRound() = default;
    explicit PracticeRound(std::vector<MenuEntry> commands) : m_commands(std::move(commands)) {}

    bool isDrawn() const { return !m_commands.empty(); }
    /// Whether every question was answered and passed on from.
    bool isOver() const { return isDrawn() && m_index == m_commands.size(); }
    /// The command that is asked for, answered or not; nullptr without a question.
    const MenuEntry* question() const { return m_index < m_commands.size() ? &m_commands[m_index] : nullptr; }
    bool isWaiting() const { return question() && !m_answer; }
    bool isLast() const { return m_index + 1 == m_commands.size(); }
    /// From 0.
    std::size_t index() const { return m_index; }
    std::size_t length() const { return m_commands.size(); }
    /// To the present question; absent while it waits.
    const std::optional<PracticeAnswer>& answer() const { return m_answer; }
    const std::vector<PracticeResult>& results() const { return m_results; }

    std::size_t rightCount() const;
    /// The commands that were not answered right, in the order in which they were asked.
    std::vector<MenuEntry> missed() const;

    /// Answers the question that waits with a key press, which is shown as `display`. The result, which is to
    /// be recorded; absent when no question waits.
    std::optional<PracticeResult> press(const KeyStroke& stroke, std::string display);
    /// Gives the answer away. The same.
    std::optional<PracticeResult> reveal();
    /// From an answered question to the next, or to the results. Nothing while it waits.
    void goOn();

  private:
    PracticeResult take(PracticeAnswer answer);

    std::vector<MenuEntry> m_commands;
    std::size_t m_index = 0;
    std::optional<PracticeAnswer> m_answer;
    std::vector<PracticeResult> m_results;
};

} // namespace quillon
