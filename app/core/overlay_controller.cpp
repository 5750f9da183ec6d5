#include "overlay_controller.h"

#include "app_model.h"

namespace quillon {

void OverlayController::show(AppModel& model, Stickiness stickiness) {
    if (!m_panel) {
        m_panel = m_host.makeOverlayPanel(model);
        m_panel->onEscape = [&model] { model.closeOverlay(); };
        m_panel->onResign = [&model] {
            if (model.overlaySticky())
                model.closeOverlay();
        };
    }
    const std::vector<Screen> screens = m_host.screens();
    m_panel->setFrame(PanelPlacement::overlayFrame(PanelPlacement::visibleFrame(screens, m_host.pointer())));
    m_panel->orderFront();
    if (stickiness == Stickiness::sticky)
        m_panel->makeKey();
}

void OverlayController::makeKey() {
    if (isVisible())
        m_panel->makeKey();
}

void OverlayController::hide() {
    if (m_panel)
        m_panel->orderOut();
}

} // namespace quillon
