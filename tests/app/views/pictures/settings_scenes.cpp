#include "window_scenes.h"

#include <quillon/app/views/settings/settings_view.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <QAbstractItemView>
#include <QApplication>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Prepare = std::function<void(ViewDesk&)>;
using Use = std::function<void(SettingsView&)>;

std::unique_ptr<QWidget> shown(ViewDesk& desk, SettingsTab tab, const Use& use) {
    desk.model.setSettingsTab(tab);
    auto view = std::make_unique<SettingsView>(
        desk.model, desk.themes,
        SettingsView::Needs{
            desk.desktop.sessionStart, desk.desktop.launcherKey, u"~/.local/share/app.quillon.Quillon"_s});
    view->resize(view->sizeHint());
    view->show();
    makeActive(*view);
    if (use)
        use(*view);
    return view;
}

WindowScene settings(QString name, SettingsTab tab, Prepare prepare = {}, Use use = {}) {
    auto show = [tab, prepare = std::move(prepare), use = std::move(use)](ViewDesk& desk) {
        if (prepare)
            prepare(desk);
        return shown(desk, tab, use);
    };
    return {std::move(name), std::move(show)};
}

QWidget* confirmationOf(QWidget& view) {
    return static_cast<SettingsView&>(view).privacy().confirmation();
}

QWidget* choicesOf(QWidget& view) {
    return static_cast<SettingsView&>(view).general().trigger().view()->window();
}

} // namespace

std::vector<WindowScene> settingsScenes() {
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
    WindowScene erase = settings(u"settings-erase"_s, SettingsTab::privacy, {}, [](SettingsView& view) {
        view.privacy().erase().click();
    });
    erase.part = confirmationOf;
    WindowScene choices = settings(u"settings-choices"_s, SettingsTab::general, {}, [](SettingsView& view) {
        view.general().trigger().showPopup();
    });
    choices.part = choicesOf;
    return {
        settings(u"settings-general"_s, SettingsTab::general, trusted),
        settings(
            u"settings-general-focus"_s, SettingsTab::general, {},
            [](SettingsView& view) { view.general().holdTime().setFocus(Qt::TabFocusReason); }),
        settings(u"settings-general-launcher"_s, SettingsTab::general, conflict),
        settings(
            u"settings-general-problem"_s, SettingsTab::general, troubled,
            [](SettingsView& view) { view.general().start().click(); }),
        settings(u"settings-general-large"_s, SettingsTab::general, large),
        settings(
            u"settings-coach"_s, SettingsTab::coach, {},
            [](SettingsView& view) { view.coach().nudges().setFocus(Qt::TabFocusReason); }),
        settings(u"settings-privacy"_s, SettingsTab::privacy),
        std::move(erase),
        std::move(choices),
    };
}

} // namespace quillon
