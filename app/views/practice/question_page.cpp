#include "question_page.h"

#include "practice_texts.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <variant>

namespace quillon {

namespace {

constexpr int spacing = 12;
constexpr int dotsGap = 10;

} // namespace

QuestionPage::QuestionPage(ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_dots(new ProgressDots(themeSource, this)),
      m_progress(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this)),
      m_card(new QuestionCard(themeSource, this)), m_keyboard(new KeyboardView(themeSource, this)),
      m_hint(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.caption; }, &Palette::secondary, this)),
      m_button(new ProminentButton(themeSource, {}, this)) {
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    auto* progress = new QHBoxLayout;
    progress->setSpacing(dotsGap);
    progress->addStretch(1);
    progress->addWidget(m_dots);
    progress->addWidget(m_progress);
    progress->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addLayout(progress);
    column->addWidget(m_card, 1);
    column->addWidget(m_keyboard);
    column->addWidget(m_hint);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    setTabOrder(m_card, m_button);
    connect(m_button, &QPushButton::clicked, this, &QuestionPage::buttonPressed);
}

void QuestionPage::show(const PracticeRound& round, const std::optional<Shortcut>& pressed) {
    const auto& answer = round.answer();
    m_isWaiting = !answer;
    m_dots->show(round);
    m_progress->setText(PracticeTexts::progress(round.index() + 1, round.length()));
    m_card->show(round);
    m_button->setText(
        !answer          ? PracticeTexts::showAnswer()
        : round.isLast() ? PracticeTexts::seeResults()
                         : PracticeTexts::next());
    m_button->setAccessibleDescription(answer ? m_card->verdict() : QString());
    if (!answer)
        m_keyboard->light(std::nullopt);
    else
        m_keyboard->light(
            round.question()->shortcut,
            std::holds_alternative<WrongAnswer>(*answer) ? pressed : std::nullopt);
}

void QuestionPage::takeFocus() {
    if (m_isWaiting)
        m_card->setFocus();
    else
        m_button->setFocus();
}

} // namespace quillon
