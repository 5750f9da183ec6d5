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

std::optional<FoundItem> QtOpenMenuSearch::find(const MenuPlace& place) {
    auto known = m_known.find(place.opening);
    if (known == m_known.end()) {
        auto menu = menuIn(place);
        if (!menu)
            return std::nullopt;
        known = m_known.emplace(place.opening, *std::move(menu)).first;
    }
    const OpenMenu& menu = known->second;
    const Point at = menu.map.inToolkit(place.at);
    std::optional<ObjectRef> item;
    m_calls.objectAt(menu.popup, pixel(at.x), pixel(at.y), [&item](std::optional<ObjectRef> object) {
        item = std::move(object);
    });
    m_calls.pipeline().run();
    const auto itemExtents = item ? extents(*item) : std::nullopt;
    if (!itemExtents)
        return std::nullopt;
    const Rect frame = menu.map.onDisplay(*itemExtents);
    if (!frame.contains(place.at))
        return std::nullopt;
    return FoundItem{*std::move(item), menu.titles, frame};
}

/// Goes down through the menus that are open to the one that the window can be. Where two are of one size, it
/// is the one that as many menus were open before.
std::optional<QtOpenMenuSearch::OpenMenu> QtOpenMenuSearch::menuIn(const MenuPlace& place) {
    std::optional<OpenMenu> fitting;
    std::vector<ObjectRef> titles;
    ObjectRef menu = m_menuBar;
    for (std::size_t level = 0; level < MenuParser::defaultMaxDepth; ++level) {
        const auto title = focusedChild(menu);
        const auto popup = title ? popupOf(*title) : std::nullopt;
        const auto popupExtents = popup ? extents(*popup) : std::nullopt;
        if (!popupExtents)
            break;
        titles.push_back(*title);
        menu = *popup;
        if (const auto map = mapBetween(*popupExtents, place.window)) {
            fitting = OpenMenu{menu, titles, *map};
            if (level == place.level)
                break;
        }
    }
    return fitting;
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
