#include "linux_silent_apps.h"

#include <quillon/app/platform/linux/applications/process_facts.h>
#include <quillon/app/platform/linux/applications/toolkit_libraries.h>
#include <quillon/app/platform/linux/atspi/running_apps.h>
#include <quillon/app/platform/linux/x11/open_windows.h>

#include <algorithm>
#include <utility>

#include <unistd.h>

namespace quillon {

namespace {

std::vector<WindowFacts> windowsOf(X11Connection& x11) {
    std::vector<WindowFacts> facts;
    for (SurveyedWindow& window : openWindows(x11))
        facts.push_back(std::move(window.facts));
    return facts;
}

std::optional<std::vector<std::int64_t>> processesOnTheBus() {
    const auto sharing = atspi::sharingApps();
    if (!sharing)
        return std::nullopt;
    std::vector<std::int64_t> pids;
    for (const atspi::SharingApp& app : *sharing)
        pids.push_back(app.pid);
    return pids;
}

bool contains(const std::vector<std::int64_t>& pids, std::int64_t pid) {
    return std::ranges::find(pids, pid) != pids.end();
}

} // namespace

LinuxSilentApps::Needs LinuxSilentApps::ofSession(
    std::shared_ptr<X11Connection> x11, Background& background, AppIdentifier& identifier) {
    return {
        .background = background,
        .identifier = identifier,
        .windows = [x11 = std::move(x11)] { return windowsOf(*x11); },
        .sharing = processesOnTheBus,
        .ownPid = ::getpid()};
}

Subscription LinuxSilentApps::look(std::function<void(std::vector<std::string> names)> found) {
    return m_needs.background.run([this, windows = m_needs.windows(), sharing = m_needs.sharing,
                                   processes = m_needs.processes, own = m_needs.ownPid,
                                   found = std::move(found)](const std::stop_token& stop) mutable {
        const auto onBus = sharing();
        std::vector<WindowFacts> silent;
        for (const WindowFacts& window : onBus ? windows : std::vector<WindowFacts>()) {
            if (stop.stop_requested())
                return Background::Continuation();
            if (window.pid > 0 && window.pid != own && !contains(*onBus, window.pid)
                && toolkitLibraries(window.pid, processes).qt)
                silent.push_back(window);
        }
        return Background::Continuation(
            [this, silent = std::move(silent), found = std::move(found)] { found(namesOf(silent)); });
    });
}

/// Each once, by name.
std::vector<std::string> LinuxSilentApps::namesOf(const std::vector<WindowFacts>& windows) const {
    std::vector<std::string> names;
    for (const WindowFacts& window : windows) {
        const auto identity = m_needs.identifier.identify(window);
        std::string name = identity ? identity->name : std::string();
        if (name.empty())
            name = readProcess(window.pid, m_needs.processes).executable;
        if (!name.empty())
            names.push_back(std::move(name));
    }
    std::ranges::sort(names);
    const auto repeated = std::ranges::unique(names);
    names.erase(repeated.begin(), repeated.end());
    return names;
}

} // namespace quillon
