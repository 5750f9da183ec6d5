#include "app_list.h"
#include "commands.h"

#include <quillon/app/cli/diagnosis.h>
#include <quillon/app/platform/linux/atspi/accessibility_bus.h>
#include <quillon/app/platform/linux/session/instance.h>
#include <quillon/app/platform/linux/session/session_kind.h>
#include <quillon/app/platform/linux/session/tray_host.h>
#include <quillon/app/platform/linux/x11/x11_report.h>

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
