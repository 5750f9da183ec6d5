#include "view_desk.h"

#include <quillon/app/views/overlay/overlay_view.h>
#include <quillon/app/views/toast/nudge_toast_view.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>

#include <utility>

namespace quillon {

ViewDesk::ViewDesk() {
    m_keyLabels = settings.changed.subscribe([this](Setting setting) {
        if (setting == Setting::keyLabels)
            themes.setKeyLabels(settings.keyLabels());
    });
}

void ViewDesk::trust() {
    desktop.front.setCurrent(ownApp());
    desktop.access.setTrusted(true);
    model.refreshTrust();
}

void ViewDesk::showSample() {
    model.showSample(SampleMenus::sheet(), SampleMenus::usage(), SampleMenus::annotations());
}

void ViewDesk::show(AppSheet sheet) {
    model.showSample(std::move(sheet), {}, {});
}

void ViewDesk::beginReading(const std::string& appName) {
    const RunningApp app{2, "org.example." + appName, appName, {}};
    desktop.front.setCurrent(app);
    model.frontAppChanged(app);
}

void ViewDesk::clickInMenu(const MenuEntry& entry) {
    model.handlePick({2, "org.example.Sketchpad", "Sketchpad", {}}, entry.path, entry.shortcut);
}

PanelContent ViewDesk::overlayContent() {
    auto view = std::make_shared<OverlayView>(model, themes, icons, OverlayMode::live);
    auto prepare = [view = view.get()] { view->prepare(); };
    return {
        .widget = std::move(view),
        .traits = {.cornerRadius = OverlayView::cornerRadius},
        .prepare = std::move(prepare)};
}

PanelContent ViewDesk::toastContent() {
    return {
        .widget = std::make_shared<NudgeToastView>(model, themes),
        .traits = {.cornerRadius = NudgeToastView::cornerRadius, .input = PanelInput::passes},
        .prepare = {}};
}

} // namespace quillon
