#include "window_search.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace quillon::atspi {
namespace {

/// Which of `wanted` a window is titled like; their number when none.
std::size_t rank(const BusWindow& window, std::span<const AppWindow> wanted) {
    if (window.title.empty())
        return wanted.size();
    const auto found = std::ranges::find(wanted, window.title, &AppWindow::title);
    return static_cast<std::size_t>(found - wanted.begin());
}

/// Asks for title and states of an application's windows.
void askWindows(AccessibilityCalls& calls, std::vector<ObjectRef> objects, std::vector<BusWindow>& windows) {
    for (ObjectRef& object : objects)
        windows.push_back({std::move(object), {}, {}, {}});
    for (BusWindow& window : windows) {
        calls.name(window.object, [&window](auto name) { window.title = name.value_or(std::string()); });
        calls.states(window.object, [&window](auto states) { window.states = states.value_or(StateSet{}); });
    }
}

} // namespace

std::vector<BusWindow> windowsOf(AccessibilityCalls& calls, std::span<const ObjectRef> applicationRoots) {
    struct Application {
        ToolkitFamily toolkit = ToolkitFamily::other;
        std::vector<BusWindow> windows;
    };
    std::vector<Application> applications(applicationRoots.size());
    for (std::size_t i = 0; i < applications.size(); ++i) {
        Application& application = applications[i];
        calls.toolkitName(applicationRoots[i], [&application](const std::optional<std::string>& name) {
            application.toolkit = name ? toolkitFamily(*name) : ToolkitFamily::other;
        });
        calls.children(
            applicationRoots[i], [&calls, &application](std::optional<std::vector<ObjectRef>> objects) {
                if (objects)
                    askWindows(calls, *std::move(objects), application.windows);
            });
    }
    calls.pipeline().run();

    std::vector<BusWindow> windows;
    for (Application& application : applications) {
        for (BusWindow& window : application.windows)
            window.toolkit = application.toolkit;
        std::ranges::move(application.windows, std::back_inserter(windows));
    }
    return windows;
}

void sortBestFirst(std::vector<BusWindow>& windows, std::span<const AppWindow> wanted) {
    std::ranges::stable_sort(windows, {}, [wanted](const BusWindow& window) {
        return std::tuple(
            rank(window, wanted), !window.states.has(State::active), !window.states.has(State::showing));
    });
}

bool isWanted(const BusWindow& window, std::span<const AppWindow> wanted) {
    return rank(window, wanted) < wanted.size();
}

} // namespace quillon::atspi
