#pragma once

#include "background_writes.h"
#include "click_watcher.h"
#include "current_sheet.h"
#include "data_folder.h"
#include "delayed_save.h"
#include "hold_watcher.h"
#include "learned_records.h"
#include "nudge_toast_controller.h"
#include "overlay_controller.h"
#include "reading_queue.h"
#include "retry_pace.h"
#include "settings.h"
#include "shared_sheets.h"
#include "typed_watcher.h"

#include <quillon/app/ports/accessibility_access.h>
#include <quillon/app/ports/background.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/front_application.h>
#include <quillon/app/ports/keyboard.h>
#include <quillon/app/ports/menu_reader.h>
#include <quillon/app/ports/menu_use.h>
#include <quillon/app/ports/panel_host.h>
#include <quillon/app/ports/timers.h>
#include <quillon/app/ports/typed_keys.h>
#include <quillon/app/ports/watching.h>
#include <quillon/app/ports/windows.h>
#include <quillon/kit/menu/app_sheet.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quillon {

/// What of the model changed. Changes of records and annotations are told apart, by `recordChanged`. A nudge
/// and an application to practise are told each time, be they the same again.
enum class ModelField {
    trigger,
    holdDelay,
    nudgesOn,
    countTyped,
    onboarded,
    keyLabels,
    settingsTab,
    trusted,
    current,
    sheets,
    reading,
    query,
    overlaySticky,
    practiceApp,
    nudge,
};

/// A command that was clicked although it has a shortcut.
struct Nudge {
    MenuEntry entry;
    std::string appName; ///< the display name of its application; "" when unknown

    bool operator==(const Nudge&) const = default;
};

/// What the model needs of the desktop. All of it outlives the model.
struct AppServices {
    FrontApplication& frontApplication;
    MenuReader& menuReader;
    AccessibilityAccess& accessibility;
    Keyboard& keyboard;
    MenuUse& menuUse;
    TypedKeys& typedKeys;
    const Clock& clock;
    Timers& timers;
    Background& background;
    PanelHost& panels;
    Windows& windows;
    Settings& settings;
    std::filesystem::path dataFolder = {}; ///< where what is learned is kept; empty: it is not kept at all
    std::int64_t ownPid = 0;               ///< this process, whose own menus are none of the model's business
};

/// The views' one door to the program: what it knows, which they observe, and what they may ask of it. Wires
/// the parts of which each holds one thing: the settings, the readings, the sheets, the records, their
/// saving, the watchers, the overlay and the toast. Lives on the main thread for the whole run.
class AppModel {
  public:
    explicit AppModel(AppServices services);
    ~AppModel();
    AppModel(const AppModel&) = delete;
    AppModel& operator=(const AppModel&) = delete;

    /// Emitted after a field got another value.
    Event<ModelField> changed;
    /// Emitted after a usage record or an annotation changed.
    Event<const RecordChange&> recordChanged;

    TriggerKey trigger() const { return m_services.settings.trigger(); }
    void setTrigger(TriggerKey trigger) { m_services.settings.setTrigger(trigger); }
    Seconds holdDelay() const { return m_services.settings.holdDelay(); }
    void setHoldDelay(Seconds delay) { m_services.settings.setHoldDelay(delay); }
    bool nudgesOn() const { return m_services.settings.nudgesOn(); }
    void setNudgesOn(bool on) { m_services.settings.setNudgesOn(on); }
    bool countTyped() const { return m_services.settings.countTyped(); }
    void setCountTyped(bool on) { m_services.settings.setCountTyped(on); }
    bool onboarded() const { return m_services.settings.onboarded(); }
    void setOnboarded(bool onboarded) { m_services.settings.setOnboarded(onboarded); }
    KeyLabels keyLabels() const { return m_services.settings.keyLabels(); }
    void setKeyLabels(KeyLabels labels) { m_services.settings.setKeyLabels(labels); }
    SettingsTab settingsTab() const { return m_services.settings.settingsTab(); }
    void setSettingsTab(SettingsTab tab) { m_services.settings.setSettingsTab(tab); }

    /// Whether other applications' menus may be read.
    bool trusted() const { return m_trusted; }
    /// Asks the system, and through it the user, for this. Only on the user's own request.
    void askForAccessibility() { m_services.accessibility.ask(); }
    /// Whether the system has settings for it, and opens them; false when there are none to open.
    bool offersAccessibilitySettings() const { return m_services.accessibility.hasSettings(); }
    bool openAccessibilitySettings() { return m_services.accessibility.openSettings(); }
    /// The sheet of the front application; absent before the first one is known.
    const std::optional<AppSheet>& current() const { return m_sheets.current(); }
    /// The sheets read so far, by bundle identifier; none is empty.
    const SharedSheets& sheets() const { return m_sheets.sheets(); }
    /// Whether the menus of the current application are being read (of any, while none is current).
    bool reading() const;
    /// Whether the current application answered to the end when it was read last. True until then.
    bool answered() const { return m_sheets.answered(); }
    /// Whether the current application is being read for no other reason than that it did not answer.
    bool retrying() const;
    const UsageBook& usage() const { return m_records.usage(); }
    const AnnotationBook& annotations() const { return m_records.annotations(); }
    /// The clicks and typed uses by weeks of the user's calendar.
    const WeekBook& weeks() const { return m_records.weeks(); }
    /// What is typed in the overlay's search field.
    const std::string& query() const { return m_query; }
    void setQuery(std::string query);
    /// Whether the overlay stays open when the trigger key is let go.
    bool overlaySticky() const { return m_overlaySticky; }
    /// What the toast shows, or showed last; absent before the first.
    const std::optional<Nudge>& nudge() const { return m_nudge; }

    /// Loads what was learned in earlier runs and begins to watch the desktop.
    void start();
    /// One look at the accessibility permission; what follows from a change is done at once.
    void refreshTrust();
    void frontAppChanged(const RunningApp& app);
    /// Reads the application's menus in the background.
    void read(const RunningApp& app);

    /// Makes the panels ahead of their first use, in a moment in which nothing else is to be done.
    void preparePanels();
    void showOverlay(Stickiness stickiness);
    /// Closes the overlay and clears the search.
    void closeOverlay();
    /// The user started to use a held overlay: it stays, and takes the keyboard.
    void keepOverlayOpen();
    /// What of the user's doings is noticed. Clicks and typing are only where menus may be read, and where
    /// the settings want it.
    Watching watching() const {
        return {
            .holds = m_hold.isWatching(), .clicks = m_clicks.isWatching(), .typing = m_typed.isWatching()};
    }
    bool overlayVisible() const { return m_overlay.isVisible(); }

    /// A command with a shortcut was chosen with the pointer: counted, and answered by a nudge where that is
    /// due. Nothing for an application without an identifier.
    void handlePick(const RunningApp& app, const std::vector<std::string>& path, const Shortcut& shortcut);
    /// The shortcut of a command of the current application was typed.
    void handleTyped(const MenuEntry& entry);

    /// A practice question about a command of an application was answered: counted.
    void practiced(const std::string& bundleID, const std::string& entryID, bool correct) {
        m_records.practiced(bundleID, entryID, correct);
    }
    /// Pins or unpins a command of an application.
    void togglePin(const std::string& bundleID, const std::string& entryID);
    /// Notes something of a command, as it stands; "" takes the note away. Its pin and mute stay.
    void setNote(const std::string& bundleID, const std::string& entryID, std::string note);
    /// Whether no nudges are shown for a command. Its pin and note stay.
    void setMuted(const std::string& bundleID, const std::string& entryID, bool muted);
    /// The application that practice was last asked for; "" when it was asked for without one.
    const std::string& practiceApp() const { return m_practiceApp; }
    /// Opens the practice window for an application.
    void openPractice(const std::string& bundleID);
    void requestWindow(WindowName name);
    /// Whether a window that is asked for will open; views do not offer one that will not.
    bool offersWindow(WindowName name) const { return m_services.windows.offers(name); }

    /// Returns when all that changed has been written. For the end of the program.
    void savePending();
    /// Forgets all sheets, counts, pins and notes, here and in the data folder. The settings stay.
    void eraseEverything();

    /// Takes over a sheet and what is known of its commands instead of reading any: for showing the program
    /// with sample data.
    void showSample(AppSheet sheet, UsageRecords usage, Annotations annotations, WeekSums weeks = {});

  private:
    bool isStarted() const { return static_cast<bool>(m_trustTimer); }
    void load();
    void save();
    void applyWatchers();
    void settingChanged(Setting setting);
    void startReading(const RunningApp& app);
    void retryReading();
    void sheetArrived(const RunningApp& app, AppSheet sheet, ReadOutcome outcome);
    void tellDifferences();
    void setSticky(bool sticky);
    void showNudge(Nudge nudge);
    std::span<const MenuEntry> entriesInFront() const;

    AppServices m_services;
    CurrentSheet m_sheets;
    LearnedRecords m_records;
    ReadingQueue m_readings;
    RetryPace m_retryPace;
    std::optional<RunningApp> m_retried;  ///< is being read because it did not answer
    std::shared_ptr<DataFolder> m_folder; ///< shared with a write that outlives the model
    BackgroundWrites m_writes;
    DelayedSave m_save;
    OverlayController m_overlay;
    NudgeToastController m_toast;
    HoldWatcher m_hold;
    ClickWatcher m_clicks;
    TypedWatcher m_typed;
    bool m_trusted = false;
    std::string m_query;
    bool m_overlaySticky = false;
    std::optional<Nudge> m_nudge;
    std::string m_practiceApp;
    std::uint64_t m_toldSheet = 0; ///< revision of the sheet that was told last
    bool m_toldReading = false;
    Subscription m_settingChange;
    Subscription m_recordChange;
    Subscription m_activation;
    Subscription m_trustChange;
    Subscription m_trustTimer;
};

} // namespace quillon
