#include "window_search.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace quillon::atspi {
namespace {

/// Menu bars are near the window: GTK has them at depth 2, Qt at 1. The bounds are for windows without one.
constexpr int deepestMenuBar = 10;
constexpr std::size_t mostObjects = 1500;

/// Which of `wanted` a window is titled like; their number when none.
std::size_t rank(const BusWindow& window, std::span<const AppWindow> wanted) {
    if (window.title.empty())
        return wanted.size();
    const auto found = std::ranges::find(wanted, window.title, &AppWindow::title);
    return static_cast<std::size_t>(found - wanted.begin());
}

/// Whether a menu bar may be inside: not in what shows a document or many alike.
bool mayHoldMenuBar(Role role) {
    switch (role) {
    case Role::list:
    case Role::listBox:
    case Role::menu:
    case Role::menuBar:
    case Role::menuItem:
    case Role::popupMenu:
    case Role::table:
    case Role::terminal:
    case Role::text:
    case Role::tree:
    case Role::treeTable:
    case Role::documentFrame:
    case Role::documentSpreadsheet:
    case Role::documentPresentation:
    case Role::documentText:
    case Role::documentWeb:
    case Role::documentEmail: return false;
    default: return true;
    }
}

struct Found {
    ObjectRef object;
    Role role{};
    StateSet states; ///< asked of menu bars only
};

/// The children of `parents` in order, without those that were `seen` before.
std::deque<Found> nextLevel(
    AccessibilityCalls& calls, const std::vector<ObjectRef>& parents, std::unordered_set<ObjectRef>& seen) {
    std::vector<std::vector<ObjectRef>> lists(parents.size());
    for (std::size_t i = 0; i < parents.size(); ++i)
        calls.children(parents[i], [&list = lists[i]](std::optional<std::vector<ObjectRef>> children) {
            list = std::move(children).value_or(std::vector<ObjectRef>());
        });
    calls.pipeline().run();

    std::deque<Found> level;
    for (const auto& list : lists)
        for (const ObjectRef& object : list)
            if (seen.size() < mostObjects && seen.insert(object).second)
                level.push_back({object, Role::text, {}});
    for (Found& found : level)
        calls.role(found.object, [&calls, &found](std::optional<Role> role) {
            found.role = role.value_or(Role::text); // what tells no role is not looked into
            if (found.role == Role::menuBar)
                calls.states(
                    found.object, [&found](auto states) { found.states = states.value_or(StateSet{}); });
        });
    calls.pipeline().run();
    return level;
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

std::optional<ObjectRef> findMenuBar(AccessibilityCalls& calls, const ObjectRef& window) {
    std::unordered_set<ObjectRef> seen{window};
    std::vector<ObjectRef> parents{window};
    std::optional<ObjectRef> hidden;
    for (int depth = 1; depth <= deepestMenuBar && !parents.empty(); ++depth) {
        const std::deque<Found> level = nextLevel(calls, parents, seen);
        parents.clear();
        for (const Found& found : level) {
            if (found.role == Role::menuBar && found.states.has(State::showing))
                return found.object;
            if (found.role == Role::menuBar && !hidden)
                hidden = found.object;
            if (mayHoldMenuBar(found.role))
                parents.push_back(found.object);
        }
    }
    return hidden;
}

} // namespace quillon::atspi
