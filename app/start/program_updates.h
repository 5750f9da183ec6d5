#pragma once

#include <quillon/app/core/updates/appcast_updates.h>
#include <quillon/app/core/updates/daily_check.h>
#include <quillon/app/core/updates/update_memory.h>
#include <quillon/app/core/updates/updater.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/foreground.h>
#include <quillon/app/ports/software_pages.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/updates/update_windows.h>

#include <QString>

namespace quillon {

/// Everything about newer releases, put together.
class ProgramUpdates {
  public:
    struct Needs {
        const Clock& clock;
        Timers& timers;
        Background& background;
        ThemeSource& themes;
        Foreground& foreground;
        SoftwarePages& pages;
        QString settingsFile;
    };
    /// What `needs` refers to outlives it.
    explicit ProgramUpdates(const Needs& needs);

    /// Begins to look once a day, where there is a list of releases.
    void start() { m_daily.start(); }
    /// The user's check.
    void checkForUpdates() { m_updater.checkForUpdates(); }

  private:
    ReleaseSource m_source;
    AskFeed m_ask;
    UpdateMemory m_memory;
    UpdateWindows m_windows;
    AppcastUpdates m_framework;
    Updater m_updater;
    DailyCheck m_daily;
};

} // namespace quillon
