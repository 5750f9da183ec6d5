#include "linux_application_list.h"

#include "inline_background.h"

#include <quillon/app/platform/linux/applications/app_identifier.h>
#include <quillon/app/platform/linux/applications/process_facts.h>
#include <quillon/app/platform/linux/atspi/accessibility_bus.h>
#include <quillon/app/platform/linux/atspi/running_apps.h>
#include <quillon/app/platform/linux/x11/open_windows.h>
#include <quillon/app/platform/linux/x11/x11_connection.h>
#include <quillon/app/platform/linux/x11/x11_front_application.h>
#include <quillon/app/platform/qt/system_clock.h>

#include <algorithm>
#include <chrono>

#include <unistd.h>

namespace quillon {

namespace {

/// A command may wait longer for a busy X server than a program that has windows to draw.
constexpr std::chrono::milliseconds patience{2000};

/// The applications that have windows, the topmost first, each with its windows.
std::vector<RunningApp> appsWithWindows() {
    const auto x11 = X11Connection::open({}, patience);
    if (!x11)
        return {};
    const DesktopEntries entries = DesktopEntries::installed();
    std::vector<RunningApp> apps;
    for (const SurveyedWindow& window : openWindows(*x11)) {
        const std::int64_t pid = window.facts.pid;
        const AppIdentity identity = entries.identify(window.facts, readProcess(pid, "/proc"));
        const auto known = std::ranges::find_if(
            apps, [&](const RunningApp& app) { return app.pid == pid && app.bundleID == identity.bundleID; });
        RunningApp& app = known != apps.end()
                              ? *known
                              : apps.emplace_back(RunningApp{pid, identity.bundleID, identity.name, {}});
        app.windows.push_back({window.id, window.title});
    }
    return apps;
}

RunningApp appWithoutWindows(const atspi::SharingApp& sharing, const DesktopEntries& entries) {
    WindowFacts facts;
    facts.pid = sharing.pid;
    const AppIdentity identity = entries.identify(facts, readProcess(sharing.pid, "/proc"));
    return {sharing.pid, identity.bundleID, identity.name.empty() ? sharing.name : identity.name, {}};
}

} // namespace

std::optional<std::string> LinuxApplicationList::obstacle() {
    switch (m_session.found().state) {
    case BusState::absent: return "there is no session bus; run this inside of a desktop session";
    case BusState::silent: return "the session bus does not answer; see quillon doctor";
    case BusState::answers: break;
    }
    const atspi::AccessibilityBusState bus = atspi::probeAccessibilityBus();
    if (!bus.hasAccessibilityBus)
        return "the accessibility bus cannot be reached; install at-spi2-core and log in again";
    if (bus.isEnabled && !*bus.isEnabled)
        return "accessibility is off; choose “Allow Accessibility…” in Quillon’s menu";
    return std::nullopt;
}

std::vector<ListedApp> LinuxApplicationList::apps() {
    const auto sharing = atspi::sharingApps();
    if (!sharing)
        return {};
    const std::vector<RunningApp> windowed = appsWithWindows();
    const DesktopEntries entries = DesktopEntries::installed();
    std::vector<ListedApp> listed;
    for (const atspi::SharingApp& app : *sharing) {
        if (app.pid == getpid())
            continue;
        const std::string toolkit =
            app.toolkit + (app.toolkitVersion.empty() ? "" : " " + app.toolkitVersion);
        const std::size_t before = listed.size();
        for (const RunningApp& candidate : windowed)
            if (candidate.pid == app.pid)
                listed.push_back({candidate, toolkit});
        if (listed.size() == before)
            listed.push_back({appWithoutWindows(app, entries), toolkit});
    }
    return listed;
}

std::optional<RunningApp> LinuxApplicationList::front() {
    const auto x11 = X11Connection::open({}, patience);
    if (!x11)
        return std::nullopt;
    InlineBackground background;
    const SystemClock clock;
    AppIdentifier identifier(background, clock);
    return X11FrontApplication(x11, identifier).current();
}

} // namespace quillon
