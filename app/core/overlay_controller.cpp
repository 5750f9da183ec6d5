#include "overlay_controller.h"

#include "panel_placement.h"

namespace quillon {

OverlayController::OverlayController(PanelHost& host)
    : m_host(host), m_screens(host.onScreensChanged([this] { fitAnew(); })) {}

void OverlayController::prepare() {
    if (m_panel)
        return;
    makePanel();
    placeIn(PanelPlacement::visibleFrame(m_host.screens(), m_host.pointer()));
    m_panel->prepare();
}

void OverlayController::show(Stickiness stickiness) {
    if (!m_panel)
        makePanel();
    placeIn(PanelPlacement::visibleFrame(m_host.screens(), m_host.pointer()));
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

void OverlayController::placeIn(Rect visibleFrame) {
    m_frame = PanelPlacement::overlayFrame(visibleFrame);
    m_panel->setFrame(m_frame);
}

/// On the screen that it is on.
void OverlayController::fitAnew() {
    if (isVisible())
        placeIn(PanelPlacement::visibleFrameAround(m_host.screens(), m_frame));
}

} // namespace quillon
