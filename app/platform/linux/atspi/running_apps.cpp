#include "running_apps.h"

#include "accessibility_bus.h"
#include "accessibility_calls.h"
#include "application_search.h"

#include <future>

namespace quillon::atspi {

namespace {

using Deadline = CallPipeline::Clock::time_point;

SharingApp asked(
    const BusApplication& application, const std::string& bus, const ReadLimits& limits, Deadline deadline) {
    CallPipeline pipeline(BusConnection::at(bus), limits, deadline, {});
    AccessibilityCalls calls(pipeline, limits);
    SharingApp app;
    app.busName = application.root.busName;
    app.pid = application.pid;
    const auto into = [](std::string& field) {
        return [&field](std::optional<std::string> text) { field = std::move(text).value_or(std::string()); };
    };
    calls.name(application.root, into(app.name));
    calls.toolkitName(application.root, into(app.toolkit));
    calls.toolkitVersion(application.root, into(app.toolkitVersion));
    pipeline.run();
    return app;
}

} // namespace

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

    // Each over a connection of its own: those that do not answer must not use up the time of those that do.
    std::vector<std::future<SharingApp>> answers;
    for (const BusApplication& application : *found)
        answers.push_back(
            std::async(std::launch::async, [&] { return asked(application, *address, limits, deadline); }));
    std::vector<SharingApp> apps;
    for (std::future<SharingApp>& answer : answers)
        apps.push_back(answer.get());
    return apps;
}

} // namespace quillon::atspi
