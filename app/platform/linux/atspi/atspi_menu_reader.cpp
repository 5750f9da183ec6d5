#include "atspi_menu_reader.h"

#include "accessibility_bus.h"
#include "app_windows.h"
#include "application_search.h"
#include "menu_bar_search.h"
#include "menu_outline.h"
#include "menu_walk.h"

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
        const auto windows = windowsOfApp(m_calls, *applications, app);
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
