#include "scenes.h"

#include <quillon/app/views/tray/pop_up_menu.h>
#include <quillon/app/views/tray/tray_lines.h>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The tray's menu as our own window.
Scene menu(QString name, TrayFacts facts) {
    auto show = [facts = std::move(facts)](ViewDesk& desk) {
        PopUpMenu& popUp = keep(desk, std::make_unique<PopUpMenu>(desk.themes, [](int) {}));
        popUp.setItems(trayLines(facts));
        popUp.popUp({0, 0});
        return &popUp.menu();
    };
    return {std::move(name), std::move(show)};
}

} // namespace

std::vector<Scene> trayMenuScenes() {
    return {
        menu(u"tray-menu"_s, {.trusted = true, .appName = "Sketchpad"}),
        menu(u"tray-menu-not-allowed"_s, {.trusted = false, .appName = {}, .trigger = TriggerKey::option}),
    };
}

} // namespace quillon
