#include "qt_open_menu_search.h"

#include <quillon/kit/menu/menu_parser.h>

#include <algorithm>
#include <cmath>

namespace quillon::atspi {
namespace {

/// How many items of a menu are asked whether their submenu is open.
constexpr std::size_t mostAsked = 128;

std::int32_t pixel(double value) {
    return static_cast<std::int32_t>(std::floor(value));
}

} // namespace

std::optional<Rect> QtOpenMenuSearch::prepare(const MenuPlace& place) {
    return knownMenuIn(place) ? std::optional(place.window) : std::nullopt;
}

std::optional<FoundItem> QtOpenMenuSearch::find(const MenuPlace& place) {
    const OpenMenu* menu = knownMenuIn(place);
    if (!menu)
        return std::nullopt;
    auto item = objectAt(menu->popup, menu->map.inToolkit(place.at));
    const auto itemExtents = item ? extents(*item) : std::nullopt;
    if (!itemExtents)
        return std::nullopt;
    const Rect frame = menu->map.onDisplay(*itemExtents);
    if (!frame.contains(place.at))
        return std::nullopt;
    return FoundItem{*std::move(item), menu->titles, frame};
}

const QtOpenMenuSearch::OpenMenu* QtOpenMenuSearch::knownMenuIn(const MenuPlace& place) {
    const auto known = m_known.find(place.opening);
    if (known != m_known.end())
        return &known->second;
    auto menu = menuIn(place);
    return menu ? &m_known.emplace(place.opening, *std::move(menu)).first->second : nullptr;
}

/// Goes down through the menus that are open to the one that the window can be. Where two are of one size, it
/// is the one that as many menus were open before.
std::optional<QtOpenMenuSearch::OpenMenu> QtOpenMenuSearch::menuIn(const MenuPlace& place) {
    std::optional<OpenMenu> fitting;
    OpenMenu menu{m_menuBar, {}, {}};
    for (std::size_t level = 0; level < MenuParser::defaultMaxDepth; ++level) {
        auto next = menuBelow(menu, place);
        if (!next)
            break;
        menu = *std::move(next);
        const auto map = mapBetween(menu.place, place.window);
        if (!map)
            continue;
        menu.map = *map;
        fitting = menu;
        if (level == place.level)
            break;
    }
    return fitting;
}

/// The menu that is open below another: mostly that of the title that the pointer was on.
std::optional<QtOpenMenuSearch::OpenMenu>
QtOpenMenuSearch::menuBelow(const OpenMenu& parent, const MenuPlace& place) {
    if (const auto title = objectAt(parent.popup, parent.map.inToolkit(place.openedFrom))) {
        auto menu = opened(parent, *title);
        if (menu && mapBetween(menu->place, place.window))
            return menu;
    }
    const auto title = focusedChild(parent.popup);
    return title ? opened(parent, *title) : std::nullopt;
}

std::optional<QtOpenMenuSearch::OpenMenu>
QtOpenMenuSearch::opened(const OpenMenu& parent, const ObjectRef& title) {
    const auto popup = popupOf(title);
    const auto place = popup ? extents(*popup) : std::nullopt;
    if (!place)
        return std::nullopt;
    OpenMenu menu{*popup, parent.titles, parent.map, *place};
    menu.titles.push_back(title);
    return menu;
}

std::optional<ObjectRef> QtOpenMenuSearch::objectAt(const ObjectRef& object, Point place) {
    std::optional<ObjectRef> found;
    m_calls.objectAt(object, pixel(place.x), pixel(place.y), [&found](std::optional<ObjectRef> child) {
        found = std::move(child);
    });
    m_calls.pipeline().run();
    return found;
}

std::optional<ObjectRef> QtOpenMenuSearch::focusedChild(const ObjectRef& menu) {
    const std::vector<ObjectRef>& items = children(menu);
    std::optional<ObjectRef> focused;
    for (std::size_t i = 0; i < std::min(items.size(), mostAsked); ++i)
        m_calls.states(items[i], [&focused, &item = items[i]](std::optional<StateSet> states) {
            if (states && states->has(State::focused))
                focused = item;
        });
    m_calls.pipeline().run();
    return focused;
}

std::optional<ObjectRef> QtOpenMenuSearch::popupOf(const ObjectRef& item) {
    const std::vector<ObjectRef>& popups = children(item);
    return popups.empty() ? std::nullopt : std::optional(popups.front());
}

std::optional<Extents> QtOpenMenuSearch::extents(const ObjectRef& object) {
    std::optional<Extents> result;
    m_calls.extents(object, [&result](std::optional<Extents> extents) { result = extents; });
    m_calls.pipeline().run();
    return result;
}

/// Menus that were changed while they are open are not asked again; what is found in them is.
const std::vector<ObjectRef>& QtOpenMenuSearch::children(const ObjectRef& object) {
    const auto known = m_children.find(object);
    if (known != m_children.end())
        return known->second;
    std::vector<ObjectRef> result;
    m_calls.children(object, [&result](std::optional<std::vector<ObjectRef>> objects) {
        result = std::move(objects).value_or(std::vector<ObjectRef>());
    });
    m_calls.pipeline().run();
    return m_children.emplace(object, std::move(result)).first->second;
}

} // namespace quillon::atspi
