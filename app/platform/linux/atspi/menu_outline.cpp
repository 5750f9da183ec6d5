#include "menu_outline.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace quillon::atspi {
namespace {

using Objects = std::optional<std::vector<ObjectRef>>;

std::unordered_set<ObjectRef> setOf(std::vector<ObjectRef>&& objects) {
    return {std::make_move_iterator(objects.begin()), std::make_move_iterator(objects.end())};
}

} // namespace

std::optional<MenuOutline> MenuOutline::ask(AccessibilityCalls& calls, const ObjectRef& menuBar) {
    Objects all;
    Objects menus;
    Objects usable;
    const auto into = [](Objects& objects) {
        return [&objects](Objects found) { objects = std::move(found); };
    };
    calls.descendants(menuBar, {}, into(all));
    calls.descendants(menuBar, {Role::menu, {}}, into(menus));
    calls.descendants(menuBar, {{}, {State::enabled, State::sensitive}}, into(usable));
    calls.pipeline().run();
    if (!all || !menus || !usable || all->size() > calls.limits().itemsAtMost)
        return std::nullopt;
    return MenuOutline{setOf(*std::move(all)), setOf(*std::move(menus)), setOf(*std::move(usable))};
}

} // namespace quillon::atspi
