#include "menu_bar_search.h"

#include "menu_bar_choice.h"

#include <algorithm>
#include <deque>
#include <unordered_set>
#include <utility>
#include <vector>

namespace quillon::atspi {
namespace {

/// Menu bars are near the window: GTK has them at depth 2, Qt at 1, LibreOffice at 6. The bounds are for
/// windows without one.
constexpr int deepestMenuBar = 10;
constexpr std::size_t mostObjects = 1500;

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
    MenuBarFacts facts; ///< of menu bars only
};

void askFacts(AccessibilityCalls& calls, Found& menuBar) {
    calls.states(menuBar.object, [&facts = menuBar.facts](std::optional<StateSet> states) {
        facts.isShowing = states && states->has(State::showing);
    });
    calls.size(menuBar.object, [&facts = menuBar.facts](std::optional<Size> size) {
        if (size)
            facts.hasRoom = !size->isEmpty();
    });
}

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
                askFacts(calls, found);
        });
    calls.pipeline().run();
    return level;
}

} // namespace

std::optional<ObjectRef> findMenuBar(AccessibilityCalls& calls, const ObjectRef& window) {
    std::unordered_set<ObjectRef> seen{window};
    std::vector<ObjectRef> parents{window};
    std::vector<ObjectRef> bars;
    std::vector<MenuBarFacts> facts;
    const auto isCertain = [](const MenuBarFacts& bar) { return claimOf(bar) == MenuBarClaim::seen; };
    for (int depth = 1; depth <= deepestMenuBar && !parents.empty(); ++depth) {
        const std::deque<Found> level = nextLevel(calls, parents, seen);
        parents.clear();
        for (const Found& found : level) {
            if (found.role == Role::menuBar) {
                bars.push_back(found.object);
                facts.push_back(found.facts);
            } else if (mayHoldMenuBar(found.role)) {
                parents.push_back(found.object);
            }
        }
        if (std::ranges::any_of(facts, isCertain))
            break;
    }
    const auto chosen = chosenMenuBar(facts);
    return chosen ? std::optional(bars[*chosen]) : std::nullopt;
}

} // namespace quillon::atspi
