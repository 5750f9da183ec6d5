#include "menu_reader.h"

#include "accessibility_bus.h"
#include "application_search.h"
#include "cached_objects.h"
#include "menu_walk.h"
#include "window_search.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillon {

using namespace atspi;

namespace {

constexpr std::size_t mostLargeCaches = 64;

/// Whether asking for the cache cost more than it saved: an object in it costs about a sixth of what asking
/// for an item's name and states does.
bool wasWasteful(std::size_t toldOf, std::size_t items) {
    return toldOf > 6 * items + 2000;
}

} // namespace

bool AtspiMenuReader::LargeCaches::holds(const std::string& application) const {
    const std::scoped_lock lock(m_mutex);
    return std::ranges::find(m_applications, application) != m_applications.end();
}

void AtspiMenuReader::LargeCaches::add(std::string application) {
    const std::scoped_lock lock(m_mutex);
    m_applications.push_back(std::move(application));
    if (m_applications.size() > mostLargeCaches)
        m_applications.pop_front();
}

/// One reading, from the bus to the items.
class AtspiMenuReader::Reading {
  public:
    Reading(CallPipeline& pipeline, const ReadLimits& limits, LargeCaches& largeCaches)
        : m_pipeline(pipeline), m_calls(pipeline, limits), m_largeCaches(largeCaches) {}

    MenuReading read(const RunningApp& app) {
        const auto applications = applicationsOnBus(m_calls);
        if (!applications)
            return {{}, ReadOutcome::unavailable};
        const std::vector<BusWindow> windows = windowsOfApp(*applications, app);
        if (m_roots.empty())
            return {{}, ended(ReadOutcome::noSuchApp)};
        for (const BusWindow& window : windows)
            if (const auto menuBar = findMenuBar(m_calls, window.object))
                return readItems(*menuBar, app.pid);
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
            if (application.pid == app.pid)
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

    MenuReading readItems(const ObjectRef& menuBar, std::int64_t pid) {
        const ToolkitFamily family = familyOf(menuBar);
        const std::string application = menuBar.busName + ' ' + std::to_string(pid);
        std::optional<CachedObjects> cached;
        if (family == ToolkitFamily::gtk && !m_largeCaches.holds(application)) {
            CachedObjects::ask(
                m_calls, menuBar.busName, [&cached](auto objects) { cached = std::move(objects); });
            m_pipeline.run();
            if (!cached)
                m_largeCaches.add(application);
        }
        MenuWalk walk(m_calls, family, cached ? &*cached : nullptr);
        walk.start(menuBar);
        m_pipeline.run();
        if (cached && wasWasteful(cached->toldOf(), walk.itemCount()))
            m_largeCaches.add(application);
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
    LargeCaches& m_largeCaches;
    std::vector<ObjectRef> m_roots; ///< the application's, one for each of its connections
};

MenuReading AtspiMenuReader::readMenus(const RunningApp& app, std::stop_token stop) {
    const auto deadline = CallPipeline::Clock::now() + m_limits.whole;
    const auto address = accessibilityBusAddress(m_limits, deadline, stop);
    if (!address)
        return {};
    CallPipeline pipeline(BusConnection::at(*address), m_limits, deadline, stop);
    return Reading(pipeline, m_limits, m_largeCaches).read(app);
}

} // namespace quillon
