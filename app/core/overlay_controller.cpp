#include "overlay_controller.h"

#include "panel_placement.h"

#include <vector>

namespace quillon {

void OverlayController::prepare() {
    if (m_panel)
        return;
    makePanel();
    place();
    m_panel->prepare();
}

void OverlayController::show(Stickiness stickiness) {
    if (!m_panel)
        makePanel();
    place();
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

void OverlayController::makePanel() {
    m_panel = m_host.makeOverlayPanel();
    m_panel->onEscape = [this] {
        if (onEscape)
            onEscape();
    };
    m_panel->onResign = [this] {
        if (onResign)
            onResign();
    };
}

void OverlayController::place() {
    const std::vector<Screen> screens = m_host.screens();
    m_panel->setFrame(PanelPlacement::overlayFrame(PanelPlacement::visibleFrame(screens, m_host.pointer())));
}

} // namespace quillon
