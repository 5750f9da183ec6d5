#include "linux_diagnosis.h"

#include "desktop_facts.h"

#include <quillon/app/platform/linux/applications/process_facts.h>
#include <quillon/app/platform/linux/applications/toolkit_libraries.h>
#include <quillon/app/platform/linux/atspi/accessibility_bus.h>
#include <quillon/app/platform/linux/atspi/running_apps.h>
#include <quillon/app/platform/linux/session/bus_running_program.h>
#include <quillon/app/platform/linux/session/session_kind.h>
#include <quillon/app/platform/linux/session/tray_host.h>
#include <quillon/app/platform/linux/x11/open_windows.h>
#include <quillon/app/platform/linux/x11/x11_connection.h>
#include <quillon/app/platform/linux/x11/x11_report.h>

#include <algorithm>

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

/// The programs that have windows, each once.
std::vector<std::int64_t> programsWithWindows() {
    const auto x11 = X11Connection::open();
    std::vector<std::int64_t> pids;
    for (const SurveyedWindow& window : x11 ? openWindows(*x11) : std::vector<SurveyedWindow>())
        if (window.facts.pid > 0)
            pids.push_back(window.facts.pid);
    std::ranges::sort(pids);
    const auto repeated = std::ranges::unique(pids);
    pids.erase(repeated.begin(), repeated.end());
    return pids;
}

/// Empty also when the accessibility bus cannot be reached: then nothing is on it.
std::vector<std::string> silentGtk2Programs(const atspi::AccessibilityBusState& bus) {
    const auto sharing = bus.hasAccessibilityBus ? atspi::sharingApps() : std::nullopt;
    std::vector<std::string> names;
    for (const std::int64_t pid : sharing ? programsWithWindows() : std::vector<std::int64_t>()) {
        const bool isSharing = std::ranges::find(*sharing, pid, &atspi::SharingApp::pid) != sharing->end();
        if (!isSharing && toolkitLibraries(pid, "/proc").gtk2)
            names.push_back(readProcess(pid, "/proc").executable);
    }
    return names;
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
        .keymap = x11.keymap,
        .shapeExtension = x11.shape,
        .windowManager = x11.windowManager,
        .compositor = x11.compositor,
        .trayHost = x11.tray || hasTrayHost(m_session.connection()),
        .inTray = BusRunningProgram(m_session).isInTray(),
        .silentGtk2Programs = silentGtk2Programs(bus),
        .front = m_applications.front(),
        .instanceRunning = m_session.found().isOwned,
        .watching = BusRunningProgram(m_session).watching(),
    });
}

} // namespace quillon
