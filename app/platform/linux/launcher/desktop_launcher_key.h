#pragma once

#include "launcher_rule.h"

#include <quillon/app/ports/background.h>
#include <quillon/app/ports/launcher_key.h>

#include <memory>
#include <string>

namespace quillon {

/// What the present desktop's settings say. They are read off the main thread, each time that somebody begins
/// to ask.
class DesktopLauncherKey final : public LauncherKey {
  public:
    /// `desktops` is $XDG_CURRENT_DESKTOP. `sources` are asked on other threads. `background` outlives it.
    DesktopLauncherKey(Background& background, std::string desktops, LauncherSources sources);

    Modifiers modifier() const override { return m_modifier; }
    Subscription onChanged(std::function<void()> callback) override;

  private:
    void look();
    void found(Modifiers modifier);

    Background& m_background;
    std::string m_desktops;
    std::shared_ptr<const LauncherSources> m_sources;
    Modifiers m_modifier;
    Event<> m_changed;
    Subscription m_looking;
};

} // namespace quillon
