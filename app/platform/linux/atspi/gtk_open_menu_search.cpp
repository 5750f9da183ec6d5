#include "gtk_open_menu_search.h"

#include "menu_frames.h"

#include <quillon/kit/menu/menu_parser.h>

#include <utility>

namespace quillon::atspi {
namespace {

/// An item, and the menus that lead to it.
constexpr std::size_t longestChain = MenuParser::defaultMaxDepth + 1;

} // namespace

std::optional<ObjectRef> GtkOpenMenuSearch::selectedChild(const ObjectRef& object) {
    std::optional<ObjectRef> selected;
    m_calls.selectedChild(
        object, [&selected](std::optional<ObjectRef> child) { selected = std::move(child); });
    m_calls.pipeline().run();
    return selected;
}

std::optional<Rect> GtkOpenMenuSearch::prepare(const MenuPlace& place) {
    auto found = findOpen(place);
    if (!found)
        return std::nullopt;
    const Rect frame = found->frame;
    m_hovered.push_front({place.opening, *std::move(found)});
    if (m_hovered.size() > mostHovered)
        m_hovered.pop_back();
    return frame;
}

std::optional<FoundItem> GtkOpenMenuSearch::find(const MenuPlace& place) {
    if (auto found = findOpen(place))
        return found;
    for (const Hovered& hovered : m_hovered)
        if (hovered.opening == place.opening && hovered.item.frame.contains(place.at))
            return hovered.item;
    return std::nullopt;
}

std::optional<FoundItem> GtkOpenMenuSearch::findOpen(const MenuPlace& place) {
    const auto known = m_known.find(place.opening);
    if (known != m_known.end())
        return findInKnown(known->second, place);
    auto found = findInAll(place);
    if (found)
        m_known.emplace(place.opening, found->menus);
    return found;
}

std::optional<FoundItem>
GtkOpenMenuSearch::findInKnown(const std::vector<ObjectRef>& menus, const MenuPlace& place) {
    const auto item = selectedChild(menus.back());
    if (!item)
        return std::nullopt;
    std::optional<Rect> frame;
    m_calls.extents(*item, [&](std::optional<Extents> extents) {
        if (extents)
            frame = gtkItemFrame(*extents, place.window, place.at);
    });
    m_calls.pipeline().run();
    return frame ? std::optional(FoundItem{*item, menus, *frame}) : std::nullopt;
}

/// Follows what is selected down from the menu bar; the deepest that is at the place is the item.
std::optional<FoundItem> GtkOpenMenuSearch::findInAll(const MenuPlace& place) {
    std::vector<ObjectRef> chain;
    for (auto next = selectedChild(m_menuBar); next && chain.size() < longestChain;
         next = selectedChild(chain.back()))
        chain.push_back(*std::move(next));
    std::vector<std::optional<Rect>> frames(chain.size());
    for (std::size_t i = 1; i < chain.size(); ++i)
        m_calls.extents(chain[i], [&place, &frame = frames[i]](std::optional<Extents> extents) {
            if (extents)
                frame = gtkItemFrame(*extents, place.window, place.at);
        });
    m_calls.pipeline().run();
    for (std::size_t i = chain.size(); i-- > 1;) {
        if (!frames[i])
            continue;
        FoundItem found{chain[i], std::move(chain), *frames[i]};
        found.menus.resize(i);
        return found;
    }
    return std::nullopt;
}

} // namespace quillon::atspi
