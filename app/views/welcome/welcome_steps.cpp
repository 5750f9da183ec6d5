#include "welcome_steps.h"

#include "product_mark.h"
#include "welcome_texts.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/key_places.h>
#include <quillon/app/views/components/symbol_view.h>

#include <QHBoxLayout>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr int markSize = 64;
constexpr int sidePadding = 36;
constexpr int topPadding = 28;
constexpr int bottomPadding = 24;
constexpr int headerGap = 6;
constexpr int stepGap = 24;
constexpr int buttonGap = 8;
constexpr int allowedGap = 6;
/// More are not listed; whoever has restarted these has understood.
constexpr std::size_t mostNames = 8;

QHBoxLayout* row(QWidget* parent, int gap) {
    auto* layout = new QHBoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    return layout;
}

} // namespace

WelcomeSteps::WelcomeSteps(
    AppModel& model, ThemeSource& themeSource, const WelcomeNeeds& needs, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_needs(needs), m_column(new QVBoxLayout(this)) {
    m_column->setContentsMargins(sidePadding, topPadding, sidePadding, bottomPadding);
    m_column->setSpacing(stepGap);
    addHeader();
    const Vocabulary& vocabulary = Vocabulary::here();
    m_allow = addStep(1);
    m_allow->setText(WelcomeTexts::allowTitle(), WelcomeTexts::allowBody(vocabulary));
    m_allow->addButtons(makePermission());
    m_hold = addStep(2);
    m_places = m_hold->addText(placesOfKeys(vocabulary));
    addStep(3)->setText(WelcomeTexts::privacyTitle(vocabulary), WelcomeTexts::privacyBody(vocabulary));
    addNotes();
    m_column->addStretch(1);

    m_modelChange = model.changed.subscribe([this](ModelField field) { modelChanged(field); });
    m_launcherChange = needs.launcherKey.onChanged([this] { triggerChanged(); });
    m_trayChange = needs.tray.onShownChanged([this] { lookForTray(); });
    m_trayPatience = needs.timers.after(patienceForTray, [this] {
        m_trayIsLate = true;
        lookForTray();
    });
    trustChanged();
    triggerChanged();
}

void WelcomeSteps::addHeader() {
    auto* header = new QVBoxLayout;
    header->setSpacing(headerGap);
    const auto addLine = [&](const QString& text, ThemedLabel::FontChoice font, QColor Palette::*colour) {
        auto* label = new ThemedLabel(themes(), std::move(font), colour, this);
        label->setText(text);
        label->setAlignment(Qt::AlignHCenter);
        label->setWordWrap(true);
        header->addWidget(label);
    };
    header->addWidget(new ProductMark(themes(), markSize, this), 0, Qt::AlignHCenter);
    addLine(
        WelcomeTexts::title(), [](const TextStyles& styles) { return bold(styles.largeTitle); },
        &Palette::primary);
    addLine(
        WelcomeTexts::promise(), [](const TextStyles& styles) { return styles.title; }, &Palette::secondary);
    m_column->addLayout(header);
}

WelcomeStep* WelcomeSteps::addStep(int number) {
    auto* step = new WelcomeStep(themes(), number, this);
    m_column->addWidget(step);
    return step;
}

/// The buttons that ask for the permission, and what takes their place when it was given.
QWidget* WelcomeSteps::makePermission() {
    auto* permission = new QWidget(this);
    m_buttons = new QWidget(permission);
    QHBoxLayout* const buttons = row(m_buttons, buttonGap);
    m_ask = new ProminentButton(themes(), WelcomeTexts::allowAccessibility(), m_buttons);
    m_openSettings = new PlainButton(themes(), WelcomeTexts::openSystemSettings(), m_buttons);
    m_openSettings->setVisible(m_model.offersAccessibilitySettings());
    buttons->addWidget(m_ask);
    buttons->addWidget(m_openSettings);
    buttons->addStretch(1);
    connect(m_ask, &QPushButton::clicked, this, [this] { m_model.askForAccessibility(); });
    connect(m_openSettings, &QPushButton::clicked, this, &WelcomeSteps::openSettings);

    m_allowed = makeAllowed(permission);
    QHBoxLayout* const either = row(permission, 0);
    either->addWidget(m_buttons);
    either->addWidget(m_allowed);
    return permission;
}

QWidget* WelcomeSteps::makeAllowed(QWidget* parent) {
    auto* allowed = new QWidget(parent);
    QHBoxLayout* const parts = row(allowed, allowedGap);
    parts->setContentsMargins(focusRingRoom, 0, 0, 0);
    auto* label = new ThemedLabel(
        themes(), [](const TextStyles& styles) { return styles.headline; }, &Palette::primary, allowed);
    label->setText(WelcomeTexts::allowed());
    parts->addWidget(new SymbolView(
        themes(), Symbol::checkmarkCircleFill, theme().symbolSize() + 2, &Palette::accent, allowed));
    parts->addWidget(label, 1);
    return allowed;
}

void WelcomeSteps::addNotes() {
    m_restart = new WelcomeNote(themes(), Symbol::exclamationMarkTriangle, m_allow);
    m_allow->addInset(m_restart);
    m_launcher = new WelcomeNote(themes(), Symbol::exclamationMarkTriangle, m_hold);
    m_hold->addInset(m_launcher);
    connect(m_launcher, &WelcomeNote::actionPressed, this, [this] {
        m_model.setTrigger(TriggerKey::control);
        Q_EMIT keyboardLost();
    });
    m_noTray = new WelcomeNote(themes(), Symbol::menuBarRectangle, this);
    m_noTray->setText(WelcomeTexts::withoutTray());
    m_column->addWidget(m_noTray);
    for (QWidget* const part :
         {static_cast<QWidget*>(m_restart), static_cast<QWidget*>(m_launcher),
          static_cast<QWidget*>(m_noTray)})
        part->hide();
}

QWidget* WelcomeSteps::askButton() const {
    return m_model.trusted() ? nullptr : m_ask;
}

void WelcomeSteps::setShown(QWidget& part, bool shown) {
    if (part.isHidden() != shown)
        return;
    part.setVisible(shown);
    Q_EMIT partsChanged();
}

void WelcomeSteps::modelChanged(ModelField field) {
    if (field == ModelField::trusted)
        trustChanged();
    else if (field == ModelField::trigger || field == ModelField::keyLabels)
        triggerChanged();
}

void WelcomeSteps::trustChanged() {
    const bool trusted = m_model.trusted();
    const bool hadKeyboard = m_ask->hasFocus() || m_openSettings->hasFocus();
    setShown(*m_buttons, !trusted);
    setShown(*m_allowed, trusted);
    m_allow->setDone(trusted);
    if (trusted) {
        lookForSilentApps();
        m_lookTimer = m_needs.timers.every(lookInterval, [this] { lookForSilentApps(); });
    } else {
        m_look.reset();
        m_lookTimer.reset();
        setShown(*m_restart, false);
    }
    if (trusted && hadKeyboard)
        Q_EMIT keyboardLost();
}

void WelcomeSteps::triggerChanged() {
    const TriggerKey trigger = m_model.trigger();
    const KeyLabels labels = m_model.keyLabels();
    const QString shown = modifierLabel(modifier(trigger), labels);
    m_hold->setText(WelcomeTexts::holdTitle(shown), WelcomeTexts::holdBody(trigger, shown));
    // A name says by itself which key it is.
    setShown(*m_places, labels == KeyLabels::symbols && !m_places->text().isEmpty());
    const bool opensLauncher =
        trigger != TriggerKey::control && m_needs.launcherKey.modifier() == modifier(trigger);
    m_launcher->setText(WelcomeTexts::opensLauncher(shown));
    m_launcher->setAction(WelcomeTexts::useInstead(modifierLabel(modifier(TriggerKey::control), labels)));
    setShown(*m_launcher, opensLauncher);
}

/// Settings that do not start do not do so a second time either: the button goes.
void WelcomeSteps::openSettings() {
    if (m_model.openAccessibilitySettings())
        return;
    const bool hadKeyboard = m_openSettings->hasFocus();
    m_openSettings->hide();
    if (hadKeyboard)
        m_ask->setFocus();
}

void WelcomeSteps::lookForSilentApps() {
    m_look =
        m_needs.silentApps.look([this](const std::vector<std::string>& names) { showSilentApps(names); });
}

void WelcomeSteps::showSilentApps(const std::vector<std::string>& names) {
    QStringList shown;
    for (std::size_t i = 0; i < std::min(names.size(), mostNames); ++i)
        shown.append(foreignLine(names[i]));
    const QString text = WelcomeTexts::restart(shown);
    const bool isOther = std::exchange(m_restartNames, shown) != shown;
    m_restart->setText(text);
    setShown(*m_restart, !shown.isEmpty());
    if (isOther)
        Q_EMIT partsChanged();
}

void WelcomeSteps::lookForTray() {
    setShown(*m_noTray, m_trayIsLate && !m_needs.tray.isShown());
}

} // namespace quillon
