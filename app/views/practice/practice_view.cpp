#include "practice_view.h"

#include "answers.h"
#include "practice_texts.h"
#include "question_page.h"
#include "results_page.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/shortcut/key_names.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <random>
#include <utility>

namespace quillon {

namespace {

constexpr int padding = 24;
constexpr int pageGap = 20;
constexpr Count roundLength = 10;

ThemedLabel* sentence(ThemeSource& themes, QWidget* parent) {
    auto* label = new ThemedLabel(
        themes, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

} // namespace

PracticeView::Draw PracticeView::drawByChance() {
    return [](const AppSheet& sheet, const UsageRecords& usage, const PracticeDeck::Ids& pinned) {
        std::random_device seed;
        std::mt19937_64 random((std::uint64_t{seed()} << 32) | seed());
        return PracticeDeck::round(sheet.entries, usage, pinned, roundLength, random);
    };
}

PracticeView::PracticeView(
    AppModel& model, ThemeSource& themeSource, AnswerInput::Needs keyboard, Draw draw, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_draw(std::move(draw)), m_keys(keyboard.keys),
      m_practice(new QWidget(this)), m_empty(new MessageView(themeSource, this)),
      m_apps(new DropDown(themeSource, m_practice)), m_start(makeStart()),
      m_question(new QuestionPage(themeSource, m_practice)),
      m_results(new ResultsPage(themeSource, m_practice)), m_pages(new QStackedLayout),
      m_input(*this, keyboard) {
    layOut();
    m_apps->setAccessibleName(PracticeTexts::chooseApp());
    connect(m_apps, &QComboBox::activated, this, [this](int index) {
        choose(utf8(m_apps->itemData(index).toString()));
    });
    connect(m_question, &QuestionPage::buttonPressed, this, &PracticeView::pressButton);
    connect(m_results, &ResultsPage::anotherRoundWanted, this, &PracticeView::newRound);
    connect(&m_input, &AnswerInput::answered, this, &PracticeView::take);
    connect(&m_input, &AnswerInput::gripChanged, this, &PracticeView::tellGrip);
    connect(&m_input, &AnswerInput::keysChanged, this, &PracticeView::followKeyboard);
    m_modelChange = model.changed.subscribe([this](ModelField field) {
        if (field == ModelField::sheets)
            followSheets();
        else if (field == ModelField::practiceApp)
            followRequest();
        else if (field == ModelField::trigger || field == ModelField::keyLabels)
            tellHowToBegin();
    });
    if (model.current() && model.sheets().contains(model.current()->bundleID))
        m_appID = model.current()->bundleID;
    if (model.sheets().contains(model.practiceApp()))
        m_appID = model.practiceApp();
    m_empty->setVisible(model.sheets().empty());
    m_practice->setVisible(!model.sheets().empty());
    tellHowToBegin();
    followSheets();
    refresh();
}

PracticeView::~PracticeView() = default;

QWidget* PracticeView::makeStart() {
    auto* start = new QWidget(m_practice);
    m_startText = sentence(themes(), start);
    m_startText->setText(PracticeTexts::pressNewRound());
    m_startButton = new ProminentButton(themes(), PracticeTexts::newRound(), start);
    connect(m_startButton, &QPushButton::clicked, this, &PracticeView::newRound);
    auto* column = new QVBoxLayout(start);
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch(1);
    column->addWidget(m_startText);
    column->addStretch(1);
    column->addWidget(m_startButton, 0, Qt::AlignHCenter);
    return start;
}

void PracticeView::layOut() {
    auto* title = new ThemedLabel(
        themes(), [](const TextStyles& styles) { return bold(styles.title2); }, &Palette::primary,
        m_practice);
    title->setText(PracticeTexts::title());
    auto* header = new QHBoxLayout;
    header->addWidget(title, 1);
    header->addWidget(m_apps);
    for (QWidget* page : {m_start, static_cast<QWidget*>(m_question), static_cast<QWidget*>(m_results)})
        m_pages->addWidget(page);
    auto* column = new QVBoxLayout(m_practice);
    auto* pages = new QHBoxLayout;
    pages->setContentsMargins(0, 0, focusRingRoom, 0);
    pages->addLayout(m_pages);
    column->setContentsMargins(padding, padding, padding - focusRingRoom, padding - focusRingRoom);
    column->setSpacing(pageGap);
    column->addLayout(header);
    column->addLayout(pages, 1);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_practice);
    whole->addWidget(m_empty);
}

void PracticeView::tellHowToBegin() {
    m_empty->setMessage(
        {.symbol = Symbol::graduationCap,
         .title = PracticeTexts::noApps(),
         .body = PracticeTexts::noAppsBody(modifierLabel(modifier(m_model.trigger()), m_model.keyLabels()))});
}

/// A sheet came or went. The round that runs is of what was known when it was drawn.
void PracticeView::followSheets() {
    std::vector<NamedApp> choices = appsByName(m_model.sheets());
    if (choices == m_choices)
        return;
    m_choices = std::move(choices);
    m_apps->clear();
    for (const NamedApp& choice : m_choices)
        m_apps->addItem(choice.name, text(choice.bundleID));
    m_practice->setVisible(!m_choices.empty());
    m_empty->setVisible(m_choices.empty());
    if (m_apps->findData(text(m_appID)) < 0)
        choose(m_choices.empty() ? std::string() : m_choices.front().bundleID);
    m_apps->setCurrentIndex(m_apps->findData(text(m_appID)));
}

/// Practice is wanted for an application; without a name, for whichever it is.
void PracticeView::followRequest() {
    const int index = m_apps->findData(text(m_model.practiceApp()));
    if (m_model.practiceApp().empty() || index < 0)
        return;
    m_apps->setCurrentIndex(index);
    choose(m_model.practiceApp());
}

void PracticeView::choose(const std::string& appID) {
    if (std::exchange(m_appID, appID) == appID)
        return;
    m_round = {};
    m_startText->setText(PracticeTexts::pressNewRound());
    refresh();
}

void PracticeView::newRound() {
    const auto sheet = m_model.sheets().find(m_appID);
    if (sheet == m_model.sheets().end())
        return;
    m_round = PracticeRound(
        m_draw(*sheet->second, m_model.usage().records(m_appID), m_model.annotations().pinned(m_appID)));
    m_input.beginRound();
    m_startText->setText(
        m_round.isDrawn() ? PracticeTexts::pressNewRound()
                          : PracticeTexts::nothingToAsk(shownName(*sheet->second)));
    refresh();
}

void PracticeView::pressButton() {
    if (const auto result = m_round.reveal())
        record(*result);
    else
        m_round.goOn();
    refresh();
}

void PracticeView::record(const PracticeResult& result) {
    m_model.practiced(m_appID, result.entry.id(), result.correct);
}

void PracticeView::refresh() {
    m_input.setQuestion(
        !m_round.question()   ? Question::none
        : m_round.isWaiting() ? Question::waiting
                              : Question::answered);
    if (m_round.isOver()) {
        m_results->show(m_round);
        showPage(m_results);
    } else if (m_round.isDrawn()) {
        followKeyboard();
        m_question->show(m_round, m_lastPress);
        showPage(m_question);
    } else {
        showPage(m_start);
    }
    takeFocus();
}

/// Return does what comes next wherever else the keyboard is, but gives no answer away.
void PracticeView::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (!isReturn || !isPlain || !m_round.isDrawn() || m_round.isWaiting())
        ThemedWidget::keyPressEvent(event);
    else if (m_round.isOver())
        newRound();
    else
        pressButton();
}

/// Return does what comes next, and a question is read aloud.
void PracticeView::takeFocus() {
    if (m_round.isOver())
        m_results->focusButton();
    else if (m_round.isDrawn())
        m_question->takeFocus();
    else
        m_startButton->setFocus();
}

void PracticeView::showPage(QWidget* page) {
    m_pages->setCurrentWidget(page);
}

void PracticeView::showEvent(QShowEvent* event) {
    m_input.start();
    tellGrip();
    ThemedWidget::showEvent(event);
    takeFocus(); // what is not in a window yet keeps none
}

void PracticeView::hideEvent(QHideEvent* event) {
    m_input.stop();
    ThemedWidget::hideEvent(event);
}

void PracticeView::take(const KeyStroke& stroke) {
    m_lastPress = shownAs(stroke);
    if (const auto result = m_round.press(stroke, displayWith(*m_lastPress, theme().keyNames.get())))
        record(*result);
    refresh();
}

void PracticeView::tellGrip() {
    m_question->setHint(
        !m_input.canRead()                ? PracticeTexts::keysAreNotTold()
        : m_input.grip() == Grip::allKeys ? PracticeTexts::everyKeyComesHere()
        : m_input.grip() == Grip::letGo   ? PracticeTexts::desktopHasItsKeys()
                                          : QString());
}

void PracticeView::followKeyboard() {
    if (auto printed = m_keys.printed())
        m_question->setPrinted(std::move(*printed));
}

} // namespace quillon
