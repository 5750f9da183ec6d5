#include "xdg_appearance.h"

#include "gtk_settings.h"

#include <QFileSystemWatcher>
#include <QString>

#include <array>
#include <utility>

namespace quillon {

namespace {

/// The newer one counts first.
constexpr std::array<const char*, 2> gtkFolders{"gtk-4.0", "gtk-3.0"};

} // namespace

XdgAppearance::XdgAppearance(QDBusConnection bus, const Environment& environment)
    : m_config(configHome(environment)), m_gtkThemeVariable(environment("GTK_THEME")),
      m_portal(std::make_unique<SettingsPortal>(std::move(bus))),
      m_watcher(std::make_unique<QFileSystemWatcher>()) {
    m_portalChanges = m_portal->onChanged([this] { update(); });
    const auto changed = [this] { readFiles(); };
    QObject::connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, m_watcher.get(), changed);
    QObject::connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, m_watcher.get(), changed);
    readFiles();
}

XdgAppearance::~XdgAppearance() = default;

/// The folders tell of files that appear or are replaced, the files of what is written into them.
void XdgAppearance::watchFiles() {
    for (const char* folder : gtkFolders) {
        const auto path = m_config / folder;
        for (const auto& watched : {path, path / "settings.ini"}) {
            std::error_code error;
            const QString name = QString::fromStdString(watched.string());
            const bool isWatched =
                m_watcher->files().contains(name) || m_watcher->directories().contains(name);
            if (!isWatched && std::filesystem::exists(watched, error))
                m_watcher->addPath(name);
        }
    }
}

void XdgAppearance::readFiles() {
    if (m_config.empty())
        return;
    // Watched first, so that no change between the two goes by.
    watchFiles();
    DesktopSettings found;
    for (const char* folder : gtkFolders)
        found = merged(found, readGtkSettings(m_config / folder / "settings.ini"));
    m_fromFiles = found;
    update();
}

void XdgAppearance::update() {
    Look look = lookOf(merged(m_portal->settings(), m_fromFiles), m_gtkThemeVariable);
    if (m_look == look)
        return;
    m_look = std::move(look);
    m_changed.emit();
}

Subscription XdgAppearance::onChanged(std::function<void()> callback) {
    return m_changed.subscribe(std::move(callback));
}

} // namespace quillon
