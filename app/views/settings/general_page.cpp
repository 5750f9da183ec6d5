#include "general_page.h"

#include "settings_texts.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/key_places.h>
#include <quillon/app/views/components/symbol_view.h>

#include <QHBoxLayout>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr SliderTenths holdTenths{.first = 3, .last = 20};
constexpr int sliderWidth = 200;
constexpr int secondsWidth = 44;
constexpr int controlGap = 8;
constexpr int allowedGap = 6;
/// The key that is offered where the desktop opens its launcher with the chosen one.
constexpr TriggerKey otherTrigger = TriggerKey::control;

QHBoxLayout* rowOf(QWidget* widget, int gap) {
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gap);
    return row;
}

constexpr std::array allKeyLabels{KeyLabels::symbols, KeyLabels::names};

template <class Choice, std::size_t count>
int indexOf(const std::array<Choice, count>& choices, Choice choice) {
    return static_cast<int>(std::ranges::find(choices, choice) - choices.begin());
}

} // namespace

GeneralPage::GeneralPage(
    AppModel& model, ThemeSource& themes, SessionStart& sessionStart, LauncherKey& launcherKey,
    QWidget* parent)
    : SettingsPage(themes, parent), m_model(model), m_sessionStart(sessionStart), m_launcherKey(launcherKey) {
    FormGroup* const holding = addGroup();
    holding->addRow(makeTrigger());
    holding->addRow(makeHoldTime());
    FormGroup* const rest = addGroup();
    rest->addRow(makeKeyLabels());
    if (sessionStart.isOffered())
        rest->addRow(makeStart());
    rest->addRow(makeAccessibility());

    m_modelChange = model.changed.subscribe([this](ModelField field) { modelChanged(field); });
    m_launcherChange = launcherKey.onChanged([this] { triggerChanged(); });
    for (const ModelField field :
         {ModelField::trigger, ModelField::holdDelay, ModelField::keyLabels, ModelField::trusted})
        modelChanged(field);
}

FormRow* GeneralPage::makeTrigger() {
    m_trigger = new DropDown(themes());
    for (const TriggerKey key : allTriggerKeys)
        m_trigger->addItem(SettingsTexts::name(key));
    connect(m_trigger, &QComboBox::activated, this, [this](int index) {
        m_model.setTrigger(allTriggerKeys.at(static_cast<std::size_t>(index)));
    });
    auto* row = new FormRow(themes(), SettingsTexts::holdThisKey(), m_trigger, this);
    m_usingTheKey = row->addNote({});
    if (const QString places = placesOfKeys(Vocabulary::here()); !places.isEmpty())
        row->addNote(places);
    row->addBelow(makeLauncherNotice(row));
    return row;
}

QWidget* GeneralPage::makeLauncherNotice(QWidget* parent) {
    m_launcherNotice = new QWidget(parent);
    QHBoxLayout* const row = rowOf(m_launcherNotice, controlGap);
    m_opensLauncher = new ThemedLabel(
        themes(), [](const TextStyles& styles) { return styles.callout; }, &Palette::badgeText,
        m_launcherNotice);
    m_opensLauncher->setWordWrap(true);
    m_useOther = new PlainButton(themes(), {}, m_launcherNotice);
    connect(m_useOther, &QPushButton::clicked, this, [this] {
        m_trigger->setFocus();
        m_model.setTrigger(otherTrigger);
    });
    row->addSpacing(focusRingRoom);
    row->addWidget(new SymbolView(
        themes(), Symbol::exclamationMarkTriangle, themes().theme().symbolSize() + 2, &Palette::badgeText,
        m_launcherNotice));
    row->addWidget(m_opensLauncher, 1);
    row->addWidget(m_useOther);
    return m_launcherNotice;
}

FormRow* GeneralPage::makeHoldTime() {
    auto* control = new QWidget;
    QHBoxLayout* const line = rowOf(control, controlGap);
    m_holdTime = new StepSlider(themes(), holdTenths, SettingsTexts::seconds, control);
    m_holdTime->setFixedWidth(sliderWidth);
    m_holdTime->setAccessibleName(SettingsTexts::holdTime());
    m_seconds =
        new FigureLabel(themes(), secondsWidth, SettingsTexts::seconds(holdTenths.last / 10.0), control);
    line->addWidget(m_holdTime);
    line->addWidget(m_seconds);
    line->addSpacing(focusRingRoom);
    connect(m_holdTime, &StepSlider::chosen, this, [this](double number) {
        m_model.setHoldDelay(Seconds(number));
    });
    return new FormRow(themes(), SettingsTexts::holdTime(), control, this);
}

FormRow* GeneralPage::makeKeyLabels() {
    m_keyLabels = new DropDown(themes());
    for (const KeyLabels labels : allKeyLabels)
        m_keyLabels->addItem(SettingsTexts::name(labels));
    connect(m_keyLabels, &QComboBox::activated, this, [this](int index) {
        m_model.setKeyLabels(allKeyLabels.at(static_cast<std::size_t>(index)));
    });
    return new FormRow(themes(), SettingsTexts::showKeysAs(), m_keyLabels, this);
}

FormRow* GeneralPage::makeStart() {
    m_start = new SwitchControl(themes());
    connect(m_start, &QAbstractButton::clicked, this, &GeneralPage::startRequested);
    auto* row = new FormRow(themes(), SettingsTexts::startWithSession(), m_start, this);
    m_startProblem = row->addNote(SettingsTexts::startNotChanged());
    m_startProblem->hide();
    return row;
}

FormRow* GeneralPage::makeAccessibility() {
    auto* control = new QWidget;
    QHBoxLayout* const either = rowOf(control, 0);
    m_allow = new PlainButton(themes(), SettingsTexts::allow(), control);
    connect(m_allow, &QPushButton::clicked, this, [this] { m_model.requestWindow(WindowName::welcome); });
    m_allowed = new QWidget(control);
    QHBoxLayout* const allowed = rowOf(m_allowed, allowedGap);
    auto* label = new ThemedLabel(
        themes(), [](const TextStyles& styles) { return styles.body; }, &Palette::primary, m_allowed);
    label->setText(SettingsTexts::allowed());
    allowed->addWidget(new SymbolView(
        themes(), Symbol::checkmarkCircleFill, themes().theme().symbolSize() + 2, &Palette::accent,
        m_allowed));
    allowed->addWidget(label);
    allowed->addSpacing(focusRingRoom);
    either->addWidget(m_allow);
    either->addWidget(m_allowed);
    return new FormRow(themes(), SettingsTexts::accessibility(), control, this);
}

void GeneralPage::modelChanged(ModelField field) {
    switch (field) {
    case ModelField::trigger: return triggerChanged();
    case ModelField::holdDelay: return holdDelayChanged();
    case ModelField::keyLabels:
        m_keyLabels->setCurrentIndex(indexOf(allKeyLabels, m_model.keyLabels()));
        return triggerChanged();
    case ModelField::trusted: return trustChanged();
    default: return;
    }
}

QString GeneralPage::labelOf(TriggerKey key) const {
    return modifierLabel(modifier(key), m_model.keyLabels());
}

void GeneralPage::triggerChanged() {
    const TriggerKey key = m_model.trigger();
    const QString shown = labelOf(key);
    m_trigger->setCurrentIndex(indexOf(allTriggerKeys, key));
    m_usingTheKey->setText(SettingsTexts::usingTheKey(shown));
    m_trigger->setAccessibleDescription(m_usingTheKey->text());
    m_opensLauncher->setText(SettingsTexts::opensLauncher(shown));
    m_useOther->setText(SettingsTexts::useInstead(labelOf(otherTrigger)));
    m_useOther->updateGeometry();
    m_launcherNotice->setVisible(key != otherTrigger && m_launcherKey.modifier() == modifier(key));
}

void GeneralPage::holdDelayChanged() {
    m_holdTime->setNumber(m_model.holdDelay().count());
    m_seconds->setText(m_holdTime->wording());
}

void GeneralPage::trustChanged() {
    const bool hadKeyboard = m_allow->hasFocus();
    m_allow->setVisible(!m_model.trusted());
    m_allowed->setVisible(m_model.trusted());
    if (m_model.trusted() && hadKeyboard)
        m_keyLabels->setFocus();
}

void GeneralPage::startRequested(bool on) {
    const bool done = m_sessionStart.setOn(on);
    m_startProblem->setVisible(!done);
    m_start->setAccessibleDescription(done ? QString() : SettingsTexts::startNotChanged());
    refreshStart();
}

void GeneralPage::refreshStart() {
    if (m_start)
        m_start->setChecked(m_sessionStart.isOn());
}

void GeneralPage::showEvent(QShowEvent* event) {
    refreshStart();
    SettingsPage::showEvent(event);
}

} // namespace quillon
