#include "app_model.h"

#include "sheet_arrival.h"

#include <quillon/kit/menu/menu_parser.h>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr Seconds trustInterval{2.0};

bool isSameApp(const RunningApp& a, const RunningApp& b) {
    return a.pid == b.pid && a.bundleID == b.bundleID;
}

} // namespace

AppModel::AppModel(AppServices services)
    : m_services(services), m_overlay(services.panels),
      m_hold(
          services.keyboard, services.clock, services.timers,
          HoldDetector(modifier(services.settings.trigger()), services.settings.holdDelay())) {
    m_overlay.onEscape = [this] { closeOverlay(); };
    m_overlay.onResign = [this] {
        if (m_overlaySticky)
            closeOverlay();
    };
}

AppModel::~AppModel() = default;

/// Tells what `change` changed of the sheet and its reading when all of it is done, so that nobody sees one
/// without the other.
template <class Change>
void AppModel::changeSheet(Change change) {
    const bool wasReading = reading();
    const auto before = m_sheetChanges;
    change();
    if (m_sheetChanges != before)
        changed.emit(ModelField::current);
    if (reading() != wasReading)
        changed.emit(ModelField::reading);
}

TriggerKey AppModel::trigger() const {
    return m_services.settings.trigger();
}

void AppModel::setTrigger(TriggerKey trigger) {
    if (trigger == this->trigger())
        return;
    m_services.settings.setTrigger(trigger);
    m_hold.replaceDetector(HoldDetector(modifier(trigger), holdDelay()));
    changed.emit(ModelField::trigger);
}

Seconds AppModel::holdDelay() const {
    return m_services.settings.holdDelay();
}

void AppModel::setHoldDelay(Seconds delay) {
    if (delay == holdDelay())
        return;
    m_services.settings.setHoldDelay(delay);
    m_hold.replaceDetector(HoldDetector(modifier(trigger()), delay));
    changed.emit(ModelField::holdDelay);
}

void AppModel::setNudgesOn(bool on) {
    if (on == nudgesOn())
        return;
    m_services.settings.setNudgesOn(on);
    applyWatchers();
    changed.emit(ModelField::nudgesOn);
}

void AppModel::setCountTyped(bool on) {
    if (on == countTyped())
        return;
    m_services.settings.setCountTyped(on);
    applyWatchers();
    changed.emit(ModelField::countTyped);
}

void AppModel::setOnboarded(bool onboarded) {
    if (onboarded == this->onboarded())
        return;
    m_services.settings.setOnboarded(onboarded);
    changed.emit(ModelField::onboarded);
}

void AppModel::setQuery(std::string query) {
    if (query == m_query)
        return;
    m_query = std::move(query);
    changed.emit(ModelField::query);
}

bool AppModel::reading() const {
    return std::ranges::any_of(m_underWay, [this](const Reading& reading) {
        return !m_current || reading.app.bundleID == m_current->bundleID;
    });
}

void AppModel::start() {
    m_hold.onShow = [this] { showOverlay(Stickiness::held); };
    m_hold.onHide = [this] {
        if (!m_overlaySticky)
            m_overlay.hide();
    };
    m_activation =
        m_services.frontApplication.onActivated([this](const RunningApp& app) { frontAppChanged(app); });
    m_trustChange = m_services.accessibility.onChanged([this] { refreshTrust(); });
    refreshTrust();
    m_trustTimer = m_services.timers.every(trustInterval, [this] { refreshTrust(); });
}

void AppModel::refreshTrust() {
    const bool trusted = m_services.accessibility.isTrusted();
    const bool firstSheetIsMissing = !m_current && m_underWay.empty();
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

void AppModel::applyWatchers() {
    m_hold.start();
}

void AppModel::frontAppChanged(const RunningApp& app) {
    if (app.pid == m_services.ownPid)
        return;
    changeSheet([&] {
        const auto cached = m_sheets.find(app.bundleID);
        setCurrent(
            cached != m_sheets.end() ? cached->second : AppSheet{app.bundleID, app.name, {}, distantPast});
        queueReading(app);
    });
}

void AppModel::read(const RunningApp& app) {
    changeSheet([&] { queueReading(app); });
}

void AppModel::queueReading(const RunningApp& app) {
    if (!m_trusted || app.pid == m_services.ownPid)
        return;
    const auto underWay = std::ranges::find_if(
        m_underWay, [&app](const Reading& reading) { return isSameApp(reading.app, app); });
    if (underWay == m_underWay.end())
        startReading(app);
    else if (underWay->app == app)
        underWay->next.reset();
    else
        underWay->next = app;
}

void AppModel::startReading(const RunningApp& app) {
    m_underWay.push_back({app, std::nullopt});
    MenuReader& reader = m_services.menuReader;
    const Clock& clock = m_services.clock;
    m_services.background.run(
        [this, app, &reader, &clock, alive = std::weak_ptr<bool>(m_alive)](std::stop_token stop) {
            const MenuReading reading = reader.readMenus(app, std::move(stop));
            AppSheet sheet{
                app.bundleID, app.name, MenuParser::entries(reading.menuBar, MenuParser::defaultMaxDepth),
                clock.now()};
            return [this, app, alive, outcome = reading.outcome, sheet = std::move(sheet)]() mutable {
                if (alive.lock())
                    readArrived(app, std::move(sheet), outcome);
            };
        });
}

void AppModel::readArrived(const RunningApp& app, AppSheet sheet, ReadOutcome outcome) {
    changeSheet([&] {
        const auto ended =
            std::ranges::find_if(m_underWay, [&app](const Reading& reading) { return reading.app == app; });
        const std::optional<RunningApp> next = ended->next;
        m_underWay.erase(ended);
        takeArrival(app, std::move(sheet), outcome);
        if (next)
            queueReading(*next);
    });
}

void AppModel::takeArrival(const RunningApp& app, AppSheet sheet, ReadOutcome outcome) {
    const auto cached = m_sheets.find(app.bundleID);
    const auto front = m_services.frontApplication.current();
    const SheetArrival arrival = decideSheetArrival({
        .produced = outcome != ReadOutcome::unavailable,
        .complete = outcome != ReadOutcome::partial,
        .entries = sheet.entries.size(),
        .cachedEntries = cached == m_sheets.end() ? 0 : cached->second.entries.size(),
        .isIdentified = !app.bundleID.empty(),
        .anythingCurrent = m_current.has_value(),
        .currentIsThatApp = m_current && m_current->bundleID == app.bundleID,
        .thatAppIsInFront = front && isSameApp(*front, app),
    });
    switch (arrival.current) {
    case SheetArrival::Current::keep: break;
    case SheetArrival::Current::takeNew: setCurrent(sheet); break;
    case SheetArrival::Current::takeCached: setCurrent(cached->second); break;
    }
    if (arrival.store)
        m_sheets.insert_or_assign(app.bundleID, std::move(sheet));
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

void AppModel::togglePin(const std::string& bundleID, const std::string& entryID) {
    m_annotations.togglePin(bundleID, entryID);
    changed.emit(ModelField::annotations);
}

void AppModel::showSample(AppSheet sheet, UsageRecords usage, Annotations annotations) {
    m_usage.apps.insert_or_assign(sheet.bundleID, std::move(usage));
    m_annotations.apps.insert_or_assign(sheet.bundleID, std::move(annotations));
    changed.emit(ModelField::usage);
    changed.emit(ModelField::annotations);
    changeSheet([&] { setCurrent(std::move(sheet)); });
}

void AppModel::setCurrent(AppSheet sheet) {
    if (m_current == sheet)
        return;
    m_current = std::move(sheet);
    ++m_sheetChanges;
}

void AppModel::setSticky(bool sticky) {
    if (std::exchange(m_overlaySticky, sticky) != sticky)
        changed.emit(ModelField::overlaySticky);
}

} // namespace quillon
