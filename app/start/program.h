#pragma once

#include "program_updates.h"
#include "window_contents.h"

#include <quillon/app/cheatsheet/exports/system_exports.h>
#include <quillon/app/core/app_model.h>
#include <quillon/app/core/first_trust.h>
#include <quillon/app/core/welcome_at_start.h>
#include <quillon/app/platform/qt/qt_timers.h>
#include <quillon/app/platform/qt/system_clock.h>
#include <quillon/app/platform/qt/thread_background.h>
#include <quillon/app/ports/instance.h>
#include <quillon/app/ports/platform.h>
#include <quillon/app/ports/running_program.h>
#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/panels/view_panel_host.h>
#include <quillon/app/views/tray/tray_menu.h>
#include <quillon/app/views/windows/titled_windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillon {

class Showcase;

/// What the program is started for.
struct ProgramWish {
    ProgramRequest request = ProgramRequest::activate;
    std::string practiceApp =
        {}; ///< with `openPractice`, the bundle identifier of what to practise; "" for any
};

/// The running program: everything that lives from its start to its end, in the order in which it needs one
/// another.
class Program {
  public:
    /// `platform` outlives it.
    explicit Program(Platform& platform);
    ~Program();

    /// What other processes of the session may ask of this one.
    InstanceRequests requests();
    void start(const ProgramWish& wish);

  private:
    void activate();
    void comeUp();
    bool openWindow(WindowName name);
    void askedFor(std::function<void()> show);
    void openPractice(const std::string& bundleID);
    void showOverlay();
    void onceTrustIsKnown(std::function<void()> show);
    void showSample();

    SystemClock m_clock;
    QtTimers m_timers;
    ThreadBackground m_background;
    std::unique_ptr<Desktop> m_desktop;
    Settings m_settings;
    ThemeSource m_themes;
    SystemExports m_exports;
    AppIconCache m_icons;
    ViewPanelHost m_panels;
    TitledWindows m_windows;
    AppModel m_model;
    ProgramUpdates m_updates;
    TrayMenu m_tray;
    std::vector<Subscription> m_windowOffers;
    std::unique_ptr<Showcase> m_showcase;
    Subscription m_keyLabels;
    Subscription m_preparation;
    FirstTrust m_trustForFirstShow;
    WelcomeAtStart m_welcome;
    bool m_isToldWhatFor = true; ///< false from a start for the session bus until its first request
};

} // namespace quillon
