#include "running_apps.h"

#include "accessibility_bus.h"
#include "accessibility_calls.h"
#include "application_search.h"

namespace quillon::atspi {

std::optional<std::vector<SharingApp>> sharingApps(const ReadLimits& limits) {
    const auto deadline = CallPipeline::Clock::now() + limits.whole;
    const auto address = accessibilityBusAddress(limits, deadline, {});
    if (!address)
        return std::nullopt;
    CallPipeline pipeline(BusConnection::at(*address), limits, deadline, {});
    AccessibilityCalls calls(pipeline, limits);
    const auto found = applicationsOnBus(calls);
    if (!found)
        return std::nullopt;

    std::vector<SharingApp> apps(found->size());
    const auto into = [](std::string& field) {
        return [&field](std::optional<std::string> text) { field = std::move(text).value_or(std::string()); };
    };
    for (std::size_t i = 0; i < apps.size(); ++i) {
        const ObjectRef& root = (*found)[i].root;
        apps[i].busName = root.busName;
        apps[i].pid = (*found)[i].pid;
        calls.name(root, into(apps[i].name));
        calls.toolkitName(root, into(apps[i].toolkit));
        calls.toolkitVersion(root, into(apps[i].toolkitVersion));
    }
    pipeline.run();
    return apps;
}

} // namespace quillon::atspi
