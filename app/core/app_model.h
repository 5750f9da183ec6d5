#pragma once

#include "hold_watcher.h"
#include "overlay_controller.h"
#include "settings.h"

#include <quillon/app/ports/accessibility_access.h>
#include <quillon/app/ports/background.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/front_application.h>
#include <quillon/app/ports/keyboard.h>
#include <quillon/app/ports/menu_reader.h>
#include <quillon/app/ports/panel_host.h>
#include <quillon/app/ports/timers.h>
#include <quillon/app/ports/windows.h>
#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/records/usage.h>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// What of the model changed.
enum class ModelField {
    trigger,
    holdDelay,
    nudgesOn,
    countTyped,
    onboarded,
    trusted,
    current,
    reading,
    usage,
    annotations,
    query,
    overlaySticky,
};

/// What the model needs of the desktop. All of it outlives the model.
struct AppServices {
    FrontApplication& frontApplication;
    MenuReader& menuReader;
    AccessibilityAccess& accessibility;
    Keyboard& keyboard;
    const Clock& clock;
    Timers& timers;
    Background& background;
    PanelHost& panels;
    Windows& windows;
    Settings& settings;
    std::int64_t ownPid = 0; ///< this process, whose own menus are none of the model's business
};

/// The one long-lived object of the program: settings, the front application's sheet, the sheets read so far,
/// what was learned, and the overlay. Lives on the main thread; views observe `changed` and act through its
/// operations.
class AppModel {
  public:
    explicit AppModel(AppServices services);
    ~AppModel();
    AppModel(const AppModel&) = delete;
    AppModel& operator=(const AppModel&) = delete;

    /// Emitted after a field got another value.
    Event<ModelField> changed;

    TriggerKey trigger() const;
    void setTrigger(TriggerKey trigger);
    Seconds holdDelay() const;
    void setHoldDelay(Seconds delay);
    /// Whether clicks on menu commands are answered by nudges.
    bool nudgesOn() const { return m_services.settings.nudgesOn(); }
    void setNudgesOn(bool on);
    /// Whether typed shortcuts are counted.
    bool countTyped() const { return m_services.settings.countTyped(); }
    void setCountTyped(bool on);
    /// Whether the welcome was completed.
    bool onboarded() const { return m_services.settings.onboarded(); }
    void setOnboarded(bool onboarded);

    /// Whether other applications' menus may be read.
    bool trusted() const { return m_trusted; }
    /// The sheet of the front application; absent before the first one is known.
    const std::optional<AppSheet>& current() const { return m_current; }
    /// Every sheet read so far, by bundle identifier; none is empty.
    const SheetMap& sheets() const { return m_sheets; }
    /// Whether the menus of the current application are being read (of any, while none is current).
    bool reading() const;
    const UsageBook& usage() const { return m_usage; }
    const AnnotationBook& annotations() const { return m_annotations; }
    /// What is typed in the overlay's search field.
    const std::string& query() const { return m_query; }
    void setQuery(std::string query);
    /// Whether the overlay stays open when the trigger key is let go.
    bool overlaySticky() const { return m_overlaySticky; }

    /// Begins to watch the desktop.
    void start();
    /// One look at the accessibility permission; what follows from a change is done at once.
    void refreshTrust();
    void frontAppChanged(const RunningApp& app);
    /// Reads the application's menus in the background. One reading of an application is under way at a time;
    /// another that is asked for meanwhile, of other windows, follows it.
    void read(const RunningApp& app);

    /// Makes the overlay's panel ahead of its first use, in a moment in which nothing else is to be done.
    void prepareOverlay() { m_overlay.prepare(); }
    void showOverlay(Stickiness stickiness);
    /// Closes the overlay and clears the search.
    void closeOverlay();
    /// The user started to use a held overlay: it stays, and takes the keyboard.
    void keepOverlayOpen();
    /// Whether holding the trigger key is noticed.
    bool isWatching() const { return m_hold.isWatching(); }
    bool overlayVisible() const { return m_overlay.isVisible(); }

    /// Pins or unpins a command of an application.
    void togglePin(const std::string& bundleID, const std::string& entryID);
    void requestWindow(WindowName name) { m_services.windows.open(name); }
    /// Whether a window that is asked for will open; views do not offer one that will not.
    bool offersWindow(WindowName name) const { return m_services.windows.offers(name); }

    /// Takes over a sheet and what is known of its commands instead of reading any: for showing the program
    /// with sample data.
    void showSample(AppSheet sheet, UsageRecords usage, Annotations annotations);

  private:
    /// A reading under way, and what is to be read when it has ended.
    struct Reading {
        RunningApp app;
        std::optional<RunningApp> next;
    };

    void applyWatchers();
    template <class Change>
    void changeSheet(Change change);
    void setCurrent(AppSheet sheet);
    void queueReading(const RunningApp& app);
    void startReading(const RunningApp& app);
    void takeArrival(const RunningApp& app, AppSheet sheet, ReadOutcome outcome);
    void setSticky(bool sticky);
    void readArrived(const RunningApp& app, AppSheet sheet, ReadOutcome outcome);

    AppServices m_services;
    OverlayController m_overlay;
    HoldWatcher m_hold;
    bool m_trusted = false;
    std::optional<AppSheet> m_current;
    SheetMap m_sheets;
    std::uint64_t m_sheetChanges = 0; ///< how often `m_current` became another one
    std::vector<Reading> m_underWay;
    UsageBook m_usage;
    AnnotationBook m_annotations;
    std::string m_query;
    bool m_overlaySticky = false;
    Subscription m_activation;
    Subscription m_trustChange;
    Subscription m_trustTimer;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true); ///< expires with the model
};

} // namespace quillon
