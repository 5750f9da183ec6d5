#include "app_list.h"
#include "commands.h"

#include <quillon/atspi/accessibility_bus.h>
#include <quillon/cli/diagnosis.h>
#include <quillon/session/instance.h>
#include <quillon/x11/x11_report.h>
#include <quillon/xdg/session_kind.h>
#include <quillon/xdg/tray_host.h>

#include <iostream>

namespace quillon {

namespace {

std::optional<std::string> inputVersion(const X11Report& report) {
    if (!report.rawInput || !report.xinput)
        return std::nullopt;
    return std::to_string(report.xinput->major) + '.' + std::to_string(report.xinput->minor);
}

DesktopFacts gatherFacts() {
    const atspi::AccessibilityBusState bus = atspi::probeAccessibilityBus();
    const X11Report x11 = x11Report();
    return {
        .sessionBus = bus.hasSessionBus,
        .accessibilityBus = bus.hasAccessibilityBus,
        .accessibilityOn = bus.isEnabled,
        .waylandSession = sessionKind() == SessionKind::wayland,
        .display = x11.display,
        .inputExtension = inputVersion(x11),
        .keyboardExtension = x11.xkb,
        .shapeExtension = x11.shape,
        .windowManager = x11.windowManager,
        .compositor = x11.compositor,
        .trayHost = x11.tray || hasTrayHost(),
        .front = frontApp(),
        .instanceRunning = instanceIsRunning(),
    };
}

} // namespace

ExitCode runDoctor(const DoctorCommand&) {
    const std::vector<Check> checks = diagnose(gatherFacts());
    std::cout << checkupText(checks);
    return allWell(checks) ? ExitCode::success : ExitCode::failure;
}

} // namespace quillon
