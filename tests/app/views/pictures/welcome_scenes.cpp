#include "scenes.h"

#include <quillon/app/views/components/scroll_pane.h>
#include <quillon/app/views/welcome/welcome_view.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <QApplication>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Prepare = std::function<void(ViewDesk&)>;

Scene welcome(QString name, Prepare prepare = {}, QSize size = {}, bool isScrolling = false) {
    auto show = [prepare = std::move(prepare), size, isScrolling](ViewDesk& desk) {
        WelcomeView& view = keep(
            desk, std::make_unique<WelcomeView>(
                      desk.model, desk.themes,
                      WelcomeNeeds{
                          .timers = desk.desktop.timers,
                          .silentApps = desk.desktop.silentApps,
                          .launcherKey = desk.desktop.launcherKey,
                          .tray = desk.desktop.tray}));
        view.resize(size.isEmpty() ? view.sizeHint() : size.expandedTo(view.minimumSizeHint()));
        view.show();
        if (prepare)
            prepare(desk);
        if (isScrolling) {
            makeActive(view);
            view.findChild<ScrollPane*>()->setFocus();
        }
        return &view;
    };
    return {std::move(name), std::move(show)};
}

void nameSilentApps(ViewDesk& desk) {
    desk.trust();
    desk.desktop.silentApps.answer({"Qt 6 Designer", "FeatherPad"});
}

void takeTriggerKey(ViewDesk& desk) {
    desk.trust();
    desk.desktop.launcherKey.set(Modifiers::command);
}

void missTray(ViewDesk& desk) {
    desk.trust();
    desk.desktop.timers.advance(Seconds(5));
}

void everything(ViewDesk& desk) {
    nameSilentApps(desk);
    takeTriggerKey(desk);
    missTray(desk);
}

} // namespace

std::vector<Scene> welcomeScenes() {
    const auto trusted = [](ViewDesk& desk) { desk.trust(); };
    const auto option = [](ViewDesk& desk) { desk.model.setTrigger(TriggerKey::option); };
    return {
        welcome(u"welcome"_s),
        welcome(u"welcome-allowed"_s, trusted),
        welcome(u"welcome-option"_s, option),
        welcome(u"welcome-restart"_s, nameSilentApps),
        welcome(u"welcome-launcher"_s, takeTriggerKey),
        welcome(u"welcome-no-tray"_s, missTray),
        welcome(u"welcome-everything"_s, everything),
        welcome(u"welcome-small"_s, {}, QSize(420, 360)),
        welcome(u"welcome-small-focus"_s, {}, QSize(420, 360), true),
    };
}

} // namespace quillon
