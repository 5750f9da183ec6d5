#include "practice_view.h"

#include "answer_keys.h"
#include "practice_texts.h"
#include "question_page.h"
#include "results_page.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/shortcut/key_names.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <random>
#include <utility>

namespace quillon {

namespace {

constexpr int padding = 24;
constexpr int pageGap = 20;
constexpr Count roundLength = 10;

struct AppChoice {
    QString name;
    std::string appID;
};

/// Every application with a sheet, by name.
std::vector<AppChoice> choicesOf(const SharedSheets& sheets) {
    std::vector<AppChoice> choices;
    for (const auto& [appID, sheet] : sheets)
        choices.push_back({foreignLine(sheet->appName), appID});
    std::ranges::sort(choices, [](const AppChoice& a, const AppChoice& b) {
        const int order = QString::localeAwareCompare(a.name, b.name);
        return order != 0 ? order < 0 : a.appID < b.appID;
    });
    return choices;
}

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

PracticeView::PracticeView(AppModel& model, ThemeSource& themeSource, Draw draw, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_draw(std::move(draw)),
      m_practice(new QWidget(this)), m_empty(new MessageView(themeSource, this)),
      m_apps(new DropDown(themeSource, m_practice)), m_start(makeStart()),
      m_question(new QuestionPage(themeSource, m_practice)),
      m_results(new ResultsPage(themeSource, m_practice)), m_pages(new QStackedLayout) {
    layOut();
    m_apps->setAccessibleName(PracticeTexts::chooseApp());
    connect(m_apps, &QComboBox::activated, this, [this](int index) {
        choose(utf8(m_apps->itemData(index).toString()));
    });
    connect(m_question, &QuestionPage::buttonPressed, this, &PracticeView::pressButton);
    connect(m_results, &ResultsPage::anotherRoundWanted, this, &PracticeView::newRound);
    m_modelChange = model.changed.subscribe([this](ModelField field) {
        if (field == ModelField::sheets)
            followSheets();
        else if (field == ModelField::trigger || field == ModelField::keyLabels)
            tellHowToBegin();
    });
    if (model.current() && model.sheets().contains(model.current()->bundleID))
        m_appID = model.current()->bundleID;
    tellHowToBegin();
    followSheets();
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
    const std::vector<AppChoice> choices = choicesOf(m_model.sheets());
    m_apps->clear();
    for (const AppChoice& choice : choices)
        m_apps->addItem(choice.name, text(choice.appID));
    m_practice->setVisible(!choices.empty());
    m_empty->setVisible(choices.empty());
    if (m_apps->findData(text(m_appID)) < 0)
        choose(choices.empty() ? std::string() : choices.front().appID);
    m_apps->setCurrentIndex(m_apps->findData(text(m_appID)));
    refresh();
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
    m_startText->setText(
        m_round.isDrawn() ? PracticeTexts::pressNewRound()
                          : PracticeTexts::nothingToAsk(foreignLine(sheet->second->appName)));
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
    if (m_round.isOver()) {
        m_results->show(m_round);
        showPage(m_results);
        m_results->focusButton();
    } else if (m_round.isDrawn()) {
        m_question->show(m_round);
        showPage(m_question);
        m_question->focusButton();
    } else {
        showPage(m_start);
        m_startButton->setFocus();
    }
}

void PracticeView::showPage(QWidget* page) {
    m_pages->setCurrentWidget(page);
}

void PracticeView::showEvent(QShowEvent* event) {
    qApp->installEventFilter(this);
    ThemedWidget::showEvent(event);
}

void PracticeView::hideEvent(QHideEvent* event) {
    qApp->removeEventFilter(this);
    ThemedWidget::hideEvent(event);
}

/// Presses go to whatever has the keyboard in the window, and shortcuts before them: both are too late.
bool PracticeView::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    const auto* widget = isPress ? qobject_cast<QWidget*>(watched) : nullptr;
    if (!widget || widget->window() != window() || !m_round.isWaiting())
        return false;
    const auto& press = *static_cast<QKeyEvent*>(event);
    if (event->type() == QEvent::KeyPress)
        return takesPress(press);
    if (!answerKeys(press))
        return false;
    event->accept();
    return true;
}

bool PracticeView::takesPress(const QKeyEvent& press) {
    const auto keys = answerKeys(press);
    if (!keys)
        return false;
    if (press.isAutoRepeat())
        return true;
    if (const auto result = m_round.press(keys->stroke, displayWith(keys->shortcut, theme().keyNames.get())))
        record(*result);
    refresh();
    return true;
}

} // namespace quillon
