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

#include <QCoreApplication>

#include <algorithm>
#include <chrono>

#include <unistd.h>

namespace quillon {

namespace {

/// A command may wait longer for a busy X server than a program that has windows to draw.
constexpr std::chrono::milliseconds patience{2000};
constexpr const char* processes = "/proc";

/// Dialogs of dialogs; the chain is written by the application and might be a ring.
constexpr std::size_t longestOwnerChain = 8;

void noteName(ListedApp& listed, const std::string& name) {
    if (!name.empty() && std::ranges::find(listed.otherNames, name) == listed.otherNames.end())
        listed.otherNames.push_back(name);
}

/// The applications that have windows, the topmost first, each with its windows.
class WindowedApps {
  public:
    explicit WindowedApps(const DesktopEntries& entries) : m_entries(entries) {
        const auto x11 = X11Connection::open({}, patience);
        m_windows = x11 ? openWindows(*x11) : std::vector<SurveyedWindow>();
    }

    std::vector<ListedApp> listed() const {
        std::vector<ListedApp> apps;
        for (const SurveyedWindow& window : m_windows)
            add(apps, window);
        return apps;
    }

  private:
    void add(std::vector<ListedApp>& apps, const SurveyedWindow& window) const {
        const std::int64_t pid = window.facts.pid;
        const AppIdentity identity = m_entries.identifyOwned(identityOf(window), ownersOf(window));
        const auto known = std::ranges::find_if(apps, [&](const ListedApp& listed) {
            return listed.app.pid == pid && listed.app.bundleID == identity.bundleID;
        });
        ListedApp& listed =
            known != apps.end()
                ? *known
                : apps.emplace_back(ListedApp{{pid, identity.bundleID, identity.name, {}}, ""});
        listed.app.windows.push_back({window.id, window.title});
        noteName(listed, readProcess(pid, processes).executable);
        noteName(listed, window.facts.instance);
        noteName(listed, window.facts.className);
    }

    AppIdentity identityOf(const SurveyedWindow& window) const {
        return m_entries.identify(window.facts, readProcess(window.facts.pid, processes));
    }

    /// What the windows of the same process are that it belongs to, the nearest first.
    std::vector<AppIdentity> ownersOf(const SurveyedWindow& window) const {
        std::vector<AppIdentity> owners;
        xcb_window_t next = window.transientFor;
        for (std::size_t steps = 0; steps < longestOwnerChain && next != XCB_NONE; ++steps) {
            const auto owner = std::ranges::find(m_windows, next, &SurveyedWindow::id);
            if (owner == m_windows.end())
                break;
            if (owner->facts.pid == window.facts.pid)
                owners.push_back(identityOf(*owner));
            next = owner->transientFor;
        }
        return owners;
    }

    const DesktopEntries& m_entries;
    std::vector<SurveyedWindow> m_windows;
};

ListedApp appWithoutWindows(const atspi::SharingApp& sharing, const DesktopEntries& entries) {
    WindowFacts facts;
    facts.pid = sharing.pid;
    const ProcessFacts process = readProcess(sharing.pid, processes);
    const AppIdentity identity = entries.identify(facts, process);
    ListedApp listed{
        {sharing.pid, identity.bundleID, identity.name.empty() ? sharing.name : identity.name, {}}, ""};
    noteName(listed, process.executable);
    return listed;
}

std::string said(const QString& text) {
    return text.toStdString();
}

} // namespace

std::optional<std::string> LinuxApplicationList::obstacle() {
    switch (m_session.found().state) {
    case BusState::absent:
        return said(QCoreApplication::translate(
            "CommandLine", "there is no session bus; run this inside of a desktop session"));
    case BusState::silent:
        return said(QCoreApplication::translate(
            "CommandLine", "the session bus does not answer; see quillon doctor"));
    case BusState::answers: break;
    }
    const atspi::AccessibilityBusState bus = atspi::probeAccessibilityBus();
    if (!bus.hasAccessibilityBus)
        return said(QCoreApplication::translate(
            "CommandLine", "the accessibility bus cannot be reached; install at-spi2-core and log in again"));
    if (bus.isEnabled && !*bus.isEnabled)
        return said(QCoreApplication::translate(
            "CommandLine", "accessibility is off; choose “Allow Accessibility…” in Quillon’s menu"));
    return std::nullopt;
}

std::vector<ListedApp> LinuxApplicationList::apps() {
    const auto sharing = atspi::sharingApps();
    if (!sharing)
        return {};
    const DesktopEntries entries = DesktopEntries::installed();
    const std::vector<ListedApp> windowed = WindowedApps(entries).listed();
    std::vector<ListedApp> listed;
    for (const atspi::SharingApp& app : *sharing) {
        if (app.pid == getpid())
            continue;
        const std::string toolkit =
            app.toolkit + (app.toolkitVersion.empty() ? "" : " " + app.toolkitVersion);
        const std::size_t before = listed.size();
        for (const ListedApp& candidate : windowed)
            if (candidate.app.pid == app.pid)
                listed.push_back(candidate);
        if (listed.size() == before)
            listed.push_back(appWithoutWindows(app, entries));
        for (std::size_t i = before; i < listed.size(); ++i)
            listed[i].toolkit = toolkit;
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
