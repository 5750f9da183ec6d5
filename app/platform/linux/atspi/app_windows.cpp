#include "app_windows.h"

#include <algorithm>

namespace quillon::atspi {
namespace {

template <class Condition>
std::vector<ObjectRef> rootsOf(const std::vector<BusApplication>& applications, Condition condition) {
    std::vector<ObjectRef> roots;
    for (const BusApplication& application : applications)
        if (condition(application))
            roots.push_back(application.root);
    return roots;
}

} // namespace

std::optional<std::vector<BusWindow>> windowsOfApp(
    AccessibilityCalls& calls, const std::vector<BusApplication>& applications, const RunningApp& app) {
    const auto isMeant = [&app](const BusApplication& one) { return app.pid > 0 && one.pid == app.pid; };
    const auto isProxied = [](const BusApplication& one) { return isSandboxProxy(one.pid); };
    std::vector<BusWindow> windows;
    if (std::ranges::any_of(applications, isMeant)) {
        windows = windowsOf(calls, rootsOf(applications, isMeant));
    } else {
        windows = windowsOf(calls, rootsOf(applications, isProxied));
        std::erase_if(windows, [&app](const BusWindow& window) { return !isWanted(window, app.windows); });
        if (windows.empty())
            return std::nullopt;
    }
    sortBestFirst(windows, app.windows);
    return windows;
}

} // namespace quillon::atspi
