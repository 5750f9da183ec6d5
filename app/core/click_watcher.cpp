#include "click_watcher.h"

namespace quillon {

void ClickWatcher::start() {
    stop();
    m_evidence = m_menus.onEvidence([this](const MenuEvidence& evidence) { handle(evidence); });
}

void ClickWatcher::stop() {
    m_evidence.reset();
    m_detector = MenuClickDetector();
}

void ClickWatcher::handle(const MenuEvidence& evidence) {
    const auto pick = m_detector.noticed(evidence, m_clock.steadyNow());
    if (pick && pick->app.pid != m_ownPid && onPick)
        onPick(pick->app, pick->path, pick->shortcut);
}

} // namespace quillon
