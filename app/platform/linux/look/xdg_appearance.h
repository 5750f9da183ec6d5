#pragma once

#include "desktop_look.h"
#include "settings_portal.h"
#include <quillon/app/platform/linux/session/paths.h>

#include <quillon/app/ports/appearance.h>

#include <QDBusConnection>

#include <filesystem>
#include <memory>
#include <string>

class QFileSystemWatcher;

namespace quillon {

/// How things should look: what the desktop's portal tells, else GTK's settings files, else light.
class XdgAppearance final : public Appearance {
  public:
    explicit XdgAppearance(
        QDBusConnection bus = QDBusConnection::sessionBus(),
        const Environment& environment = processEnvironment);
    ~XdgAppearance() override;

    Look look() const override { return m_look; }
    Subscription onChanged(std::function<void()> callback) override;

  private:
    void watchFiles();
    void readFiles();
    void update();

    std::filesystem::path m_config;
    std::string m_gtkThemeVariable;
    std::unique_ptr<SettingsPortal> m_portal;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    DesktopSettings m_fromFiles;
    Look m_look;
    Event<> m_changed;
    Subscription m_portalChanges;
};

} // namespace quillon
