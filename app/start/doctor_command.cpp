#include "app_list.h"
#include "commands.h"

#include <quillon/atspi/accessibility_bus.h>
#include <quillon/cli/diagnosis.h>
#include <quillon/session/instance.h>

#include <iostream>

namespace quillon {

namespace {

DesktopFacts gatherFacts() {
    const atspi::AccessibilityBusState bus = atspi::probeAccessibilityBus();
    DesktopFacts facts;
    facts.sessionBus = bus.hasSessionBus;
    facts.accessibilityBus = bus.hasAccessibilityBus;
    facts.accessibilityOn = bus.isEnabled;
    facts.front = frontApp();
    facts.instanceRunning = instanceIsRunning();
    return facts;
}

} // namespace

ExitCode runDoctor(const DoctorCommand&) {
    const std::vector<Check> checks = diagnose(gatherFacts());
    std::cout << checkupText(checks);
    return allWell(checks) ? ExitCode::success : ExitCode::failure;
}

} // namespace quillon
