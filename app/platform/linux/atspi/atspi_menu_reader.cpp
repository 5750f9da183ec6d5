#include "atspi_menu_reader.h"

#include "accessibility_bus.h"
#include "application_search.h"
#include "menu_bar_search.h"
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
        const auto windows = windowsOfApp(*applications, app);
        if (!windows)
            return {{}, ended(ReadOutcome::noSuchApp)};
        for (const BusWindow& window : *windows)
            if (const auto menuBar = findMenuBar(m_calls, window.object))
                return readItems(*menuBar, window.toolkit);
        return {{}, ended(ReadOutcome::noMenuBar)};
    }

  private:
    /// `outcome`, unless not everything was answered.
    ReadOutcome ended(ReadOutcome outcome) const {
        return m_pipeline.missedAnswers() ? ReadOutcome::partial : outcome;
    }

    /// The application's windows, best first; absent when it is not on the bus.
    std::optional<std::vector<BusWindow>>
    windowsOfApp(const std::vector<BusApplication>& applications, const RunningApp& app) {
        const auto isMeant = [&app](const BusApplication& one) { return app.pid > 0 && one.pid == app.pid; };
        const auto isProxied = [](const BusApplication& one) { return isSandboxProxy(one.pid); };
        std::vector<BusWindow> windows;
        if (std::ranges::any_of(applications, isMeant)) {
            windows = windowsOf(m_calls, rootsOf(applications, isMeant));
        } else {
            windows = windowsOf(m_calls, rootsOf(applications, isProxied));
            std::erase_if(
                windows, [&app](const BusWindow& window) { return !isWanted(window, app.windows); });
            if (windows.empty())
                return std::nullopt;
        }
        sortBestFirst(windows, app.windows);
        return windows;
    }

    template <class Condition>
    static std::vector<ObjectRef>
    rootsOf(const std::vector<BusApplication>& applications, Condition condition) {
        std::vector<ObjectRef> roots;
        for (const BusApplication& application : applications)
            if (condition(application))
                roots.push_back(application.root);
        return roots;
    }

    MenuReading readItems(const ObjectRef& menuBar, ToolkitFamily family) {
        std::optional<MenuOutline> outline;
        if (family != ToolkitFamily::qt)
            outline = MenuOutline::ask(m_calls, menuBar, family);
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
        return {walk.menuBar(), ended(walk.isCut() ? ReadOutcome::limited : ReadOutcome::complete)};
    }

    CallPipeline& m_pipeline;
    AccessibilityCalls m_calls;
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
