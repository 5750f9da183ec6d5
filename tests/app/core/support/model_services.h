#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/platform/fake/fake_desktop.h>
#include <quillon/app/ports/panel_host.h>

#include <cstdint>

namespace quillon {

/// The process that the model takes for its own.
inline constexpr std::int64_t ownPidOfModel = 1;

/// All that a model needs, of a desktop that is made up but for `background`. It keeps nothing: `dataFolder`
/// is empty.
inline AppServices
servicesOf(FakeDesktop& desktop, PanelHost& panels, Settings& settings, Background& background) {
    return {
        .frontApplication = desktop.front,
        .menuReader = desktop.menus,
        .accessibility = desktop.access,
        .keyboard = desktop.keyboard,
        .menuUse = desktop.menuUse,
        .typedKeys = desktop.typedKeys,
        .clock = desktop.clock,
        .timers = desktop.timers,
        .background = background,
        .panels = panels,
        .windows = desktop.windows,
        .settings = settings,
        .ownPid = ownPidOfModel,
    };
}

/// The same with jobs that are run by hand.
inline AppServices servicesOf(FakeDesktop& desktop, PanelHost& panels, Settings& settings) {
    return servicesOf(desktop, panels, settings, desktop.background);
}

} // namespace quillon
