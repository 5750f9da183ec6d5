#include "scenes.h"

#include <quillon/app/views/settings/settings_view.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <QAbstractItemView>
#include <QApplication>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Prepare = std::function<void(ViewDesk&)>;
/// Gives what the picture is of.
using Use = std::function<QWidget*(SettingsView&)>;

SettingsView& shown(ViewDesk& desk, SettingsTab tab) {
    desk.model.setSettingsTab(tab);
    SettingsView& view = keep(
        desk, std::make_unique<SettingsView>(
                  desk.model, desk.themes,
                  SettingsView::Needs{
                      desk.desktop.sessionStart, desk.desktop.launcherKey,
                      u"~/.local/share/app.quillon.Quillon"_s}));
    view.resize(view.sizeHint());
    view.show();
    makeActive(view);
    return view;
}

Scene settings(QString name, SettingsTab tab, Prepare prepare = {}, Use use = {}) {
    auto show = [tab, prepare = std::move(prepare), use = std::move(use)](ViewDesk& desk) -> QWidget* {
        if (prepare)
            prepare(desk);
        SettingsView& view = shown(desk, tab);
        return use ? use(view) : &view;
    };
    return {std::move(name), std::move(show)};
}

QWidget* toHoldTime(SettingsView& view) {
    view.general().holdTime().setFocus(Qt::TabFocusReason);
    return &view;
}

QWidget* toNudges(SettingsView& view) {
    view.coach().nudges().setFocus(Qt::TabFocusReason);
    return &view;
}

QWidget* pressStart(SettingsView& view) {
    view.general().start().click();
    return &view;
}

QWidget* pressErase(SettingsView& view) {
    view.privacy().erase().click();
    return view.privacy().confirmation();
}

QWidget* openChoices(SettingsView& view) {
    DropDown& trigger = view.general().trigger();
    trigger.showPopup();
    return trigger.view()->window();
}

} // namespace

std::vector<Scene> settingsScenes() {
    const auto trusted = [](ViewDesk& desk) {
        desk.trust();
        desk.desktop.sessionStart.setOn(true);
    };
    const auto conflict = [](ViewDesk& desk) { desk.desktop.launcherKey.set(Modifiers::command); };
    const auto troubled = [](ViewDesk& desk) {
        desk.desktop.sessionStart.refuses = true;
        desk.model.setHoldDelay(Seconds(3));
        desk.model.setTrigger(TriggerKey::control);
    };
    const auto large = [](ViewDesk& desk) {
        Look look = desk.desktop.appearance.look();
        look.fontPoints = 17;
        desk.desktop.appearance.set(look);
    };
    return {
        settings(u"settings-general"_s, SettingsTab::general, trusted),
        settings(u"settings-general-focus"_s, SettingsTab::general, {}, toHoldTime),
        settings(u"settings-general-launcher"_s, SettingsTab::general, conflict),
        settings(u"settings-general-problem"_s, SettingsTab::general, troubled, pressStart),
        settings(u"settings-general-large"_s, SettingsTab::general, large),
        settings(u"settings-coach"_s, SettingsTab::coach, {}, toNudges),
        settings(u"settings-privacy"_s, SettingsTab::privacy),
        settings(u"settings-erase"_s, SettingsTab::privacy, {}, pressErase),
        settings(u"settings-choices"_s, SettingsTab::general, {}, openChoices),
    };
}

} // namespace quillon
