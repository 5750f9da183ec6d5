#include "menu_outline.h"

#include "hidden_items.h"

#include <chrono>
#include <iterator>
#include <utility>
#include <vector>

namespace quillon::atspi {
namespace {

using Objects = std::vector<ObjectRef>;

/// What asking an application for the states and the children of one item takes, which the outline saves.
constexpr std::chrono::microseconds worthOfItem{40};
/// How many objects are asked for first. The time that applications need to look through a menu grows with
/// the square of its length: for one of thousands of items it is longer than asking for each, and may be
/// longer than a request is waited for.
constexpr std::size_t firstTry = 1024;

std::optional<Objects>
search(AccessibilityCalls& calls, const ObjectRef& menuBar, const Condition& condition, std::size_t most) {
    std::optional<Objects> objects;
    calls.descendants(menuBar, condition, most, [&objects](std::optional<std::vector<ObjectRef>> found) {
        objects = std::move(found);
    });
    calls.pipeline().run();
    return objects;
}

/// The first `most` objects below the menu bar; absent also when telling them took longer than it saves.
std::optional<Objects> searchAll(AccessibilityCalls& calls, const ObjectRef& menuBar, std::size_t most) {
    const auto start = CallPipeline::Clock::now();
    auto all = search(calls, menuBar, {}, most);
    const auto took = CallPipeline::Clock::now() - start;
    const bool isWorthIt = all && took < worthOfItem * all->size();
    return isWorthIt ? all : std::nullopt;
}

std::optional<Objects>
hiddenBelow(AccessibilityCalls& calls, const ObjectRef& menuBar, ToolkitFamily family) {
    if (!tellsHiddenByState(family))
        return Objects();
    return search(calls, menuBar, {.missingStates = {State::visible}}, calls.limits().itemsAtMost);
}

std::unordered_set<ObjectRef> setOf(Objects objects) {
    return {std::make_move_iterator(objects.begin()), std::make_move_iterator(objects.end())};
}

std::unordered_map<ObjectRef, std::size_t> placesOf(Objects objects) {
    std::unordered_map<ObjectRef, std::size_t> places;
    places.reserve(objects.size());
    for (ObjectRef& object : objects)
        places.emplace(std::move(object), places.size());
    return places;
}

} // namespace

std::optional<MenuOutline>
MenuOutline::ask(AccessibilityCalls& calls, const ObjectRef& menuBar, ToolkitFamily family) {
    const std::size_t most = calls.limits().itemsAtMost;
    auto all = searchAll(calls, menuBar, firstTry);
    if (all && all->size() == firstTry)
        all = searchAll(calls, menuBar, most);
    if (!all || all->size() == most)
        return std::nullopt;
    const auto found = [&](const Condition& condition) { return search(calls, menuBar, condition, most); };
    auto menus = found({.role = Role::menu});
    auto usable = menus ? found({.states = {State::enabled, State::sensitive}}) : std::nullopt;
    auto hidden = usable ? hiddenBelow(calls, menuBar, family) : std::nullopt;
    if (!hidden)
        return std::nullopt;
    return MenuOutline{
        placesOf(*std::move(all)), setOf(*std::move(menus)), setOf(*std::move(usable)),
        setOf(*std::move(hidden))};
}

} // namespace quillon::atspi
