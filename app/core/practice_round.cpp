#include "practice_round.h"

#include <algorithm>
#include <utility>

namespace quillon {

std::size_t PracticeRound::rightCount() const {
    return static_cast<std::size_t>(std::ranges::count(m_results, true, &PracticeResult::correct));
}

std::vector<MenuEntry> PracticeRound::missed() const {
    std::vector<MenuEntry> missed;
    for (const PracticeResult& result : m_results)
        if (!result.correct)
            missed.push_back(result.entry);
    return missed;
}

std::optional<PracticeResult> PracticeRound::press(const KeyStroke& stroke, std::string display) {
    if (!isWaiting())
        return std::nullopt;
    if (stroke.matches(question()->shortcut))
        return take(RightAnswer());
    return take(WrongAnswer{std::move(display)});
}

std::optional<PracticeResult> PracticeRound::reveal() {
    return isWaiting() ? std::optional(take(RevealedAnswer())) : std::nullopt;
}

PracticeResult PracticeRound::take(PracticeAnswer answer) {
    m_results.push_back({*question(), std::holds_alternative<RightAnswer>(answer)});
    m_answer = std::move(answer);
    return m_results.back();
}

void PracticeRound::goOn() {
    if (!m_answer)
        return;
    m_answer.reset();
    ++m_index;
}

} // namespace quillon
