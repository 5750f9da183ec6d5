#include "menu_reader.h"

#include "accessibility_bus.h"
#include "application_search.h"
#include "menu_outline.h"
#include "menu_walk.h"
#include "window_search.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillon {

using namespace atspi;

namespace {

/// One reading, from the bus to the items.
class Reading {
  public:
    Reading(CallPipeline& pipeline, const ReadLimits& limits)
        : m_pipeline(pipeline), m_calls(pipeline, limits) {}

    MenuReading read(const RunningApp& app) {
        const auto applications = applicationsOnBus(m_calls);
        if (!applications)
            return {{}, ReadOutcome::unavailable};
        const std::vector<BusWindow> windows = windowsOfApp(*applications, app);
        if (m_roots.empty())
            return {{}, ended(ReadOutcome::noSuchApp)};
        for (const BusWindow& window : windows)
            if (const auto menuBar = findMenuBar(m_calls, window.object))
                return readItems(*menuBar);
        return {{}, ended(ReadOutcome::noMenuBar)};
    }

  private:
    /// `outcome`, unless not everything was answered.
    ReadOutcome ended(ReadOutcome outcome) const {
        return m_pipeline.missedAnswers() ? ReadOutcome::partial : outcome;
    }

    /// The application's windows, best first; leaves its roots in `m_roots`.
    std::vector<BusWindow>
    windowsOfApp(const std::vector<BusApplication>& applications, const RunningApp& app) {
        for (const BusApplication& application : applications)
            if (application.pid == app.pid && app.pid > 0)
                m_roots.push_back(application.root);
        std::vector<BusWindow> windows;
        if (!m_roots.empty())
            windows = windowsOf(m_calls, m_roots);
        else
            windows = sandboxedWindows(applications, app);
        sortBestFirst(windows, app.windows);
        return windows;
    }

    std::vector<BusWindow>
    sandboxedWindows(const std::vector<BusApplication>& applications, const RunningApp& app) {
        std::vector<ObjectRef> proxied;
        for (const BusApplication& application : applications)
            if (isSandboxProxy(application.pid))
                proxied.push_back(application.root);
        std::vector<BusWindow> windows = windowsOf(m_calls, proxied);
        std::erase_if(windows, [&app](const BusWindow& window) { return !isWanted(window, app.windows); });
        for (const ObjectRef& root : proxied)
            if (std::ranges::any_of(windows, [&root](auto& w) { return w.object.busName == root.busName; }))
                m_roots.push_back(root);
        return windows;
    }

    MenuReading readItems(const ObjectRef& menuBar) {
        const ToolkitFamily family = familyOf(menuBar);
        std::optional<MenuOutline> outline;
        if (family != ToolkitFamily::qt)
            outline = MenuOutline::ask(m_calls, menuBar);
        if (outline) {
            MenuWalk walk(m_calls, family, &*outline);
            walk.start(menuBar);
            m_pipeline.run();
            if (m_pipeline.missedAnswers() || walk.isCut() || walk.agreesWithOutline())
                return readingOf(walk);
        }
        MenuWalk walk(m_calls, family, nullptr);
        walk.start(menuBar);
        m_pipeline.run();
        return readingOf(walk);
    }

    MenuReading readingOf(const MenuWalk& walk) const {
        return {walk.menuBar(), walk.isCut() ? ReadOutcome::partial : ended(ReadOutcome::complete)};
    }

    ToolkitFamily familyOf(const ObjectRef& menuBar) {
        const auto root = std::ranges::find(m_roots, menuBar.busName, &ObjectRef::busName);
        ToolkitFamily family = ToolkitFamily::other;
        if (root == m_roots.end())
            return family;
        m_calls.toolkitName(*root, [&family](std::optional<std::string> name) {
            family = toolkitFamily(name.value_or(std::string()));
        });
        m_pipeline.run();
        return family;
    }

    CallPipeline& m_pipeline;
    AccessibilityCalls m_calls;
    std::vector<ObjectRef> m_roots; ///< the application's, one for each of its connections
};

} // namespace

MenuReading AtspiMenuReader::readMenus(const RunningApp& app, std::stop_token stop) {
    const auto deadline = CallPipeline::Clock::now() + m_limits.whole;
    const auto address = accessibilityBusAddress(m_limits, deadline, stop);
    if (!address)
        return {};
    CallPipeline pipeline(BusConnection::at(*address), m_limits, deadline, stop);
    return Reading(pipeline, m_limits).read(app);
}

} // namespace quillon
