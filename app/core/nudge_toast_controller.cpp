#include "nudge_toast_controller.h"

#include "panel_placement.h"

namespace quillon {

void NudgeToastController::prepare() {
    if (m_panel)
        return;
    place();
    m_panel->prepare();
}

void NudgeToastController::show() {
    place();
    m_panel->fadeIn(fadeInTime);
    m_hideTask = m_timers.after(shownTime, [this] { hide(); });
}

void NudgeToastController::place() {
    if (!m_panel)
        m_panel = m_host.makeToastPanel();
    const Point pointer = m_host.pointer();
    m_panel->setFrame(
        PanelPlacement::toastFrame(PanelPlacement::visibleFrame(m_host.screens(), pointer), pointer));
}

void NudgeToastController::hide() {
    m_panel->fadeOut(fadeOutTime);
}

} // namespace quillon
