#include "linux_diagnosis.h"

#include "desktop_facts.h"

#include <quillon/app/platform/linux/atspi/accessibility_bus.h>
#include <quillon/app/platform/linux/session/session_kind.h>
#include <quillon/app/platform/linux/session/tray_host.h>
#include <quillon/app/platform/linux/x11/x11_report.h>

namespace quillon {

namespace {

std::optional<std::string> inputVersion(const X11Report& report) {
    if (!report.rawInput || !report.xinput)
        return std::nullopt;
    return std::to_string(report.xinput->major) + '.' + std::to_string(report.xinput->minor);
}

/// Without a session bus that answers there is no way to the accessibility bus either.
atspi::AccessibilityBusState accessibilityBus(const SessionBus& session) {
    return session.answers() ? atspi::probeAccessibilityBus() : atspi::AccessibilityBusState{};
}

} // namespace

std::vector<Check> LinuxDiagnosis::checks() {
    const atspi::AccessibilityBusState bus = accessibilityBus(m_session);
    const X11Report x11 = x11Report();
    return diagnose({
        .sessionBus = m_session.found().state,
        .accessibilityBus = bus.hasAccessibilityBus,
        .accessibilityOn = bus.isEnabled,
        .waylandSession = sessionKind() == SessionKind::wayland,
        .display = x11.display,
        .inputExtension = inputVersion(x11),
        .keyboardExtension = x11.xkb,
        .shapeExtension = x11.shape,
        .windowManager = x11.windowManager,
        .compositor = x11.compositor,
        .trayHost = x11.tray || hasTrayHost(m_session.connection()),
        .front = m_applications.front(),
        .instanceRunning = m_session.found().isOwned,
    });
}

} // namespace quillon
