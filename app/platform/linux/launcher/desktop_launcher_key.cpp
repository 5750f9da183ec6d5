#include "desktop_launcher_key.h"

#include <utility>

namespace quillon {

DesktopLauncherKey::DesktopLauncherKey(Background& background, std::string desktops, LauncherSources sources)
    : m_background(background), m_desktops(std::move(desktops)),
      m_sources(std::make_shared<LauncherSources>(std::move(sources))) {}

Subscription DesktopLauncherKey::onChanged(std::function<void()> callback) {
    look();
    return m_changed.subscribe(std::move(callback));
}

void DesktopLauncherKey::look() {
    m_looking = m_background.run([this, desktops = m_desktops, sources = m_sources](std::stop_token) {
        const Modifiers modifier = launcherModifier(desktops, *sources);
        return [this, modifier] { found(modifier); };
    });
}

void DesktopLauncherKey::found(Modifiers modifier) {
    if (std::exchange(m_modifier, modifier) != modifier)
        m_changed.emit();
}

} // namespace quillon
