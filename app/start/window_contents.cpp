#include "window_contents.h"

#include <quillon/app/views/welcome/welcome_view.h>

#include <memory>

namespace quillon {

namespace {

/// The views say themselves when they need more.
constexpr QSize welcomeSize(560, 480);

WelcomeNeeds welcomeNeeds(const WindowNeeds& needs) {
    return {
        .timers = needs.timers,
        .silentApps = needs.desktop.silentApps(),
        .launcherKey = needs.desktop.launcherKey(),
        .tray = needs.desktop.tray()};
}

} // namespace

std::vector<Subscription> offerWindows(TitledWindows& windows, const WindowNeeds& needs) {
    std::vector<Subscription> offers;
    const auto offer = [&](WindowName name, WindowContent content) {
        offers.push_back(windows.offer(name, std::move(content)));
    };
    offer(
        WindowName::welcome,
        {.make =
             [needs] {
                 return std::make_unique<WelcomeView>(needs.model, needs.themes, welcomeNeeds(needs));
             },
         .size = welcomeSize});
    return offers;
}

} // namespace quillon
