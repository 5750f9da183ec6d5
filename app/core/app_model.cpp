#include "app_model.h"

#include "click_response.h"

#include <quillon/kit/coach/nudge_policy.h>

#include <utility>

namespace quillon {

namespace {

constexpr Seconds trustInterval{2.0};

ModelField fieldOf(Setting setting) {
    switch (setting) {
    case Setting::trigger: return ModelField::trigger;
    case Setting::holdDelay: return ModelField::holdDelay;
    case Setting::nudgesOn: return ModelField::nudgesOn;
    case Setting::countTyped: return ModelField::countTyped;
    case Setting::onboarded: return ModelField::onboarded;
    case Setting::keyLabels: return ModelField::keyLabels;
    case Setting::settingsTab: return ModelField::settingsTab;
    }
    return ModelField::trigger;
}

HoldDetector detectorFor(const Settings& settings) {
    return HoldDetector(modifier(settings.trigger()), settings.holdDelay());
}

} // namespace

AppModel::AppModel(AppServices services)
    : m_services(std::move(services)),
      m_readings(m_services.menuReader, m_services.background, m_services.clock),
      m_folder(std::make_shared<DataFolder>(m_services.dataFolder)), m_writes(m_services.background),
      m_save(m_services.timers, [this] { save(); }), m_overlay(m_services.panels),
      m_toast(m_services.panels, m_services.timers),
      m_hold(m_services.keyboard, m_services.clock, m_services.timers, detectorFor(m_services.settings)),
      m_clicks(m_services.menuUse, m_services.clock, m_services.ownPid), m_typed(m_services.typedKeys) {
    m_settingChange =
        m_services.settings.changed.subscribe([this](Setting setting) { settingChanged(setting); });
    m_recordChange = m_records.changed.subscribe([this](const RecordChange& change) {
        m_save.schedule();
        recordChanged.emit(change);
    });
    m_readings.onRead = [this](const RunningApp& app, AppSheet sheet, ReadOutcome outcome) {
        sheetArrived(app, std::move(sheet), outcome);
    };
    m_hold.onShow = [this] { showOverlay(Stickiness::held); };
    m_hold.onHide = [this] {
        if (!m_overlaySticky)
            m_overlay.hide();
    };
    m_overlay.onEscape = [this] { closeOverlay(); };
    m_overlay.onResign = [this] {
        if (m_overlaySticky)
            closeOverlay();
    };
    m_clicks.onPick = [this](const auto& app, const auto& path, const auto& shortcut) {
        handlePick(app, path, shortcut);
    };
    m_typed.entries = [this] { return entriesInFront(); };
    m_typed.onTyped = [this](const MenuEntry& entry) { handleTyped(entry); };
}

AppModel::~AppModel() = default;

void AppModel::start() {
    load();
    m_activation =
        m_services.frontApplication.onActivated([this](const RunningApp& app) { frontAppChanged(app); });
    m_trustChange = m_services.accessibility.onChanged([this] { refreshTrust(); });
    applyWatchers();
    refreshTrust();
    m_trustTimer = m_services.timers.every(trustInterval, [this] {
        refreshTrust();
        retryReading();
    });
}

void AppModel::applyWatchers() {
    m_hold.start();
    if (m_trusted && nudgesOn())
        m_clicks.start();
    else
        m_clicks.stop();
    if (m_trusted && countTyped())
        m_typed.start();
    else
        m_typed.stop();
}

void AppModel::settingChanged(Setting setting) {
    switch (setting) {
    case Setting::trigger:
    case Setting::holdDelay: m_hold.replaceDetector(detectorFor(m_services.settings)); break;
    case Setting::nudgesOn:
    case Setting::countTyped:
        if (isStarted())
            applyWatchers();
        break;
    case Setting::onboarded:
    case Setting::keyLabels:
    case Setting::settingsTab: break;
    }
    changed.emit(fieldOf(setting));
}

void AppModel::refreshTrust() {
    const bool trusted = m_services.accessibility.isTrusted();
    const bool firstSheetIsMissing = !current() && m_readings.isIdle();
    if (trusted == m_trusted && !(trusted && firstSheetIsMissing))
        return;
    if (std::exchange(m_trusted, trusted) != trusted) {
        changed.emit(ModelField::trusted);
        applyWatchers();
    }
    if (!trusted)
        return;
    if (const auto front = m_services.frontApplication.current())
        frontAppChanged(*front);
}

bool AppModel::reading() const {
    return current() ? m_readings.isReading(current()->bundleID) : !m_readings.isIdle();
}

bool AppModel::retrying() const {
    return m_retried && current() && m_retried->bundleID == current()->bundleID;
}

void AppModel::frontAppChanged(const RunningApp& app) {
    if (app.pid == m_services.ownPid)
        return;
    m_sheets.frontIs(app);
    if (m_trusted)
        startReading(app);
    tellDifferences();
}

void AppModel::read(const RunningApp& app) {
    if (!m_trusted || app.pid == m_services.ownPid)
        return;
    startReading(app);
    tellDifferences();
}

void AppModel::startReading(const RunningApp& app) {
    m_retried.reset();
    m_retryPace.restart();
    m_readings.read(app);
}

/// Reads the application in front once more when it did not answer: it may only have been busy.
void AppModel::retryReading() {
    const bool isUnanswered =
        m_trusted && current() && !answered() && !m_readings.isReading(current()->bundleID);
    if (!isUnanswered || !m_retryPace.tick())
        return;
    const auto front = m_services.frontApplication.current();
    if (!front || front->bundleID != current()->bundleID)
        return;
    m_retried = *front;
    m_readings.read(*front);
    tellDifferences();
}

void AppModel::sheetArrived(const RunningApp& app, AppSheet sheet, ReadOutcome outcome) {
    if (m_retried && isSameApp(*m_retried, app))
        m_retried.reset();
    const auto front = m_services.frontApplication.current();
    const bool isKept = m_sheets.arrived(app, std::move(sheet), outcome, front && isSameApp(*front, app));
    if (isKept)
        m_save.schedule();
    tellDifferences();
    if (isKept)
        changed.emit(ModelField::sheets);
}

/// Tells what became another sheet or reading since it was told last. Called when a change is done as a
/// whole, so that nobody sees a sheet without its reading.
void AppModel::tellDifferences() {
    const bool otherSheet = std::exchange(m_toldSheet, m_sheets.revision()) != m_sheets.revision();
    const bool otherReading = std::exchange(m_toldReading, reading()) != reading();
    if (otherSheet)
        changed.emit(ModelField::current);
    if (otherReading)
        changed.emit(ModelField::reading);
}

void AppModel::setQuery(std::string query) {
    if (query == m_query)
        return;
    m_query = std::move(query);
    changed.emit(ModelField::query);
}

void AppModel::setSticky(bool sticky) {
    if (std::exchange(m_overlaySticky, sticky) != sticky)
        changed.emit(ModelField::overlaySticky);
}

void AppModel::showOverlay(Stickiness stickiness) {
    const bool held = stickiness == Stickiness::held;
    if (held && m_services.windows.hasKeyboard(WindowName::practice))
        return;
    setQuery({});
    setSticky(!held);
    const auto front = m_services.frontApplication.current();
    if (front && front->pid != m_services.ownPid)
        read(*front);
    m_overlay.show(stickiness);
}

void AppModel::closeOverlay() {
    setSticky(false);
    setQuery({});
    m_overlay.hide();
}

void AppModel::keepOverlayOpen() {
    setSticky(true);
    m_overlay.makeKey();
}

void AppModel::preparePanels() {
    m_overlay.prepare();
    m_toast.prepare();
}

void AppModel::handlePick(
    const RunningApp& app, const std::vector<std::string>& path, const Shortcut& shortcut) {
    if (app.bundleID.empty())
        return;
    MenuEntry entry{.path = path, .shortcut = shortcut};
    const std::string id = entry.id();
    const Instant now = m_services.clock.now();
    const ClickResponse response = responseToClick(
        usage().record(app.bundleID, id), annotations().get(app.bundleID, id), nudgesOn(), defaultNudgePolicy,
        now);
    if (response.counts)
        m_records.click(app.bundleID, id, now);
    if (response.nudges) {
        m_records.nudged(app.bundleID, id, now);
        showNudge({std::move(entry), app.name});
    }
}

void AppModel::showNudge(Nudge nudge) {
    m_nudge = std::move(nudge);
    changed.emit(ModelField::nudge);
    m_toast.show();
}

void AppModel::handleTyped(const MenuEntry& entry) {
    if (current() && !current()->bundleID.empty())
        m_records.typed(current()->bundleID, entry.id(), m_services.clock.now());
}

/// Of the current sheet, where it is that of the application in front: what is typed into no application or
/// into this program belongs to none.
std::span<const MenuEntry> AppModel::entriesInFront() const {
    if (!current() || current()->entries.empty())
        return {};
    const auto front = m_services.frontApplication.current();
    if (!front || front->bundleID != current()->bundleID)
        return {};
    return current()->entries;
}

void AppModel::togglePin(const std::string& bundleID, const std::string& entryID) {
    m_records.togglePin(bundleID, entryID);
}

void AppModel::setNote(const std::string& bundleID, const std::string& entryID, std::string note) {
    m_records.setNote(bundleID, entryID, std::move(note));
}

void AppModel::setMuted(const std::string& bundleID, const std::string& entryID, bool muted) {
    m_records.setMuted(bundleID, entryID, muted);
}

void AppModel::openPractice(const std::string& bundleID) {
    m_practiceApp = bundleID;
    changed.emit(ModelField::practiceApp);
    m_services.windows.open(WindowName::practice);
}

void AppModel::requestWindow(WindowName name) {
    if (name == WindowName::practice)
        m_practiceApp.clear();
    m_services.windows.open(name);
}

void AppModel::load() {
    LearnedData learned = m_folder->load();
    m_records.replace(std::move(learned.usage), std::move(learned.annotations), std::move(learned.weeks));
    m_sheets.load(std::move(learned.sheets));
    m_save.cancel();
}

void AppModel::save() {
    if (m_services.dataFolder.empty())
        return;
    m_writes.put(
        [folder = m_folder, learned = LearnedData{usage(), annotations(), sheets(), weeks()}]() mutable {
            folder->save(std::move(learned));
        });
}

void AppModel::savePending() {
    m_save.flush();
    m_writes.finish();
}

void AppModel::eraseEverything() {
    m_records.replace({}, {}, {});
    m_sheets.clear();
    m_retried.reset();
    m_save.cancel();
    m_writes.finishWith([folder = m_folder] { folder->erase(); });
    tellDifferences();
    changed.emit(ModelField::sheets);
}

void AppModel::showSample(AppSheet sheet, UsageRecords usage, Annotations annotations, WeekSums weeks) {
    m_records.replace(sheet.bundleID, std::move(usage), std::move(annotations), std::move(weeks));
    m_sheets.show(std::move(sheet));
    tellDifferences();
}

} // namespace quillon
