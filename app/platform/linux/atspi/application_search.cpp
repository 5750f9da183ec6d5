#include "application_search.h"

#include <fstream>
#include <string>

namespace quillon::atspi {

std::optional<std::vector<BusApplication>> applicationsOnBus(AccessibilityCalls& calls) {
    std::optional<std::vector<BusApplication>> applications;
    calls.children(registryRoot(), [&](std::optional<std::vector<ObjectRef>> roots) {
        if (!roots)
            return;
        applications.emplace();
        for (ObjectRef& root : *roots)
            applications->push_back({std::move(root), 0});
        for (BusApplication& application : *applications)
            calls.processId(application.root.busName, [&application](std::optional<std::int64_t> pid) {
                application.pid = pid.value_or(0);
            });
    });
    calls.pipeline().run();
    return applications;
}

bool isSandboxProxy(std::int64_t pid) {
    std::ifstream file("/proc/" + std::to_string(pid) + "/comm");
    std::string name;
    std::getline(file, name);
    return name == "xdg-dbus-proxy";
}

} // namespace quillon::atspi
