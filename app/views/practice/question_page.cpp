#include "question_page.h"

#include "practice_texts.h"

#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/menu/menu_entry.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <variant>

namespace quillon {

namespace {

constexpr int spacing = 10;
constexpr int verdictGap = 6;
constexpr int signSize = 18;
constexpr double keySize = 22;

ThemedLabel* middled(ThemedLabel* label) {
    label->setAlignment(Qt::AlignCenter);
    return label;
}

/// "File › Export", where the command is found.
QString placeOf(const MenuEntry& entry) {
    const std::string submenu = entry.submenuPath();
    return foreignLine(
        submenu.empty() ? std::string(entry.menu()) : std::string(entry.menu()) + " › " + submenu);
}

QString verdictOn(const PracticeAnswer& answer) {
    if (const auto* wrong = std::get_if<WrongAnswer>(&answer))
        return PracticeTexts::youPressed(text(wrong->pressed));
    return std::holds_alternative<RightAnswer>(answer) ? PracticeTexts::right() : QString();
}

} // namespace

QuestionPage::QuestionPage(ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent),
      m_progress(middled(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this))),
      m_menu(middled(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, this))),
      m_command(middled(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return bold(styles.title); }, &Palette::primary,
          this))),
      m_rightSign(new SymbolView(themeSource, Symbol::checkmarkCircleFill, signSize, &Palette::accent, this)),
      m_verdict(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.headline; }, &Palette::primary, this)),
      m_keys(new KeysView(themeSource, std::nullopt, keySize, CapEmphasis::prominent, this)),
      m_button(new ProminentButton(themeSource, {}, this)) {
    m_menu->setWordWrap(true);
    m_command->setWordWrap(true);
    // Keeps its room, so that nothing jumps when the answer comes.
    QSizePolicy keysPolicy = m_keys->sizePolicy();
    keysPolicy.setRetainSizeWhenHidden(true);
    m_keys->setSizePolicy(keysPolicy);
    auto* verdict = new QHBoxLayout;
    verdict->setSpacing(verdictGap);
    verdict->addStrut(signSize + 2);
    verdict->addStretch(1);
    verdict->addWidget(m_rightSign);
    verdict->addWidget(m_verdict);
    verdict->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(m_progress);
    column->addStretch(2);
    column->addWidget(m_menu);
    column->addWidget(m_command);
    column->addSpacing(spacing);
    column->addLayout(verdict);
    column->addWidget(m_keys, 0, Qt::AlignHCenter);
    column->addStretch(3);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    connect(m_button, &QPushButton::clicked, this, &QuestionPage::buttonPressed);
}

void QuestionPage::show(const PracticeRound& round) {
    const MenuEntry& entry = *round.question();
    m_progress->setText(PracticeTexts::progress(round.index() + 1, round.length()));
    m_menu->setText(placeOf(entry));
    m_command->setText(foreignLine(entry.title()));
    showAnswer(round);
}

void QuestionPage::showAnswer(const PracticeRound& round) {
    const auto& answer = round.answer();
    m_rightSign->setVisible(answer && std::holds_alternative<RightAnswer>(*answer));
    m_verdict->setText(answer ? verdictOn(*answer) : PracticeTexts::pressShortcut());
    m_keys->setVisible(answer.has_value());
    if (answer)
        m_keys->setShortcut(round.question()->shortcut);
    m_button->setText(
        !answer          ? PracticeTexts::showAnswer()
        : round.isLast() ? PracticeTexts::seeResults()
                         : PracticeTexts::next());
}

} // namespace quillon
