#include "window_contents.h"

#include <quillon/app/views/library/library_view.h>
#include <quillon/app/views/practice/practice_view.h>
#include <quillon/app/views/settings/settings_view.h>
#include <quillon/app/views/welcome/welcome_view.h>

#include <memory>

namespace quillon {

namespace {

/// The views say themselves when they need more.
constexpr QSize welcomeSize(560, 480);
constexpr QSize settingsSize(560, 420);
constexpr QSize practiceSize(560, 580);
constexpr QSize librarySize(880, 580);

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
    offer(
        WindowName::practice,
        {.make =
             [needs] {
                 return std::make_unique<PracticeView>(
                     needs.model, needs.themes,
                     AnswerInput::Needs{
                         needs.desktop.keyReading(), needs.desktop.keyboardGrab(), needs.timers});
             },
         .size = practiceSize,
         .escape = EscapeKey::doesNothing});
    offer(
        WindowName::library, {.make =
                                  [needs] {
                                      return std::make_unique<LibraryView>(
                                          needs.model, needs.themes,
                                          LibraryView::Needs{needs.icons, needs.clock, needs.exports});
                                  },
                              .size = librarySize});
    offer(
        WindowName::settings,
        {.make =
             [needs] {
                 return std::make_unique<SettingsView>(
                     needs.model, needs.themes,
                     SettingsView::Needs{
                         needs.desktop.sessionStart(), needs.desktop.launcherKey(), needs.dataFolder});
             },
         .size = settingsSize});
    return offers;
}

} // namespace quillon
