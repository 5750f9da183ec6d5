#pragma once

#include "open_menu_search.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <unordered_map>

namespace quillon::atspi {

/// GTK 2 and 3: a menu bar has the menu that is open selected, and each menu the item that is pointed at,
/// which is what letting go of the button chooses. An item that cannot be used is never selected. Once a menu
/// has closed, its items tell no place, and it finds its first item everywhere; so what was pointed at is
/// remembered.
class GtkOpenMenuSearch final : public OpenMenuSearch {
  public:
    GtkOpenMenuSearch(AccessibilityCalls& calls, ObjectRef menuBar)
        : m_calls(calls), m_menuBar(std::move(menuBar)) {}

    std::optional<Rect> prepare(const MenuPlace& place) override;
    std::optional<FoundItem> find(const MenuPlace& place) override;

  private:
    struct Hovered {
        std::uint64_t opening;
        FoundItem item;
    };
    static constexpr std::size_t mostHovered = 64;

    std::optional<FoundItem> findOpen(const MenuPlace& place);
    std::optional<FoundItem> findInKnown(const std::vector<ObjectRef>& menus, const MenuPlace& place);
    std::optional<FoundItem> findInAll(const MenuPlace& place);
    std::optional<ObjectRef> selectedChild(const ObjectRef& object);

    AccessibilityCalls& m_calls;
    ObjectRef m_menuBar;
    std::unordered_map<std::uint64_t, std::vector<ObjectRef>> m_known; ///< by opening: the way to its menu
    std::deque<Hovered> m_hovered;                                     ///< the newest first
};

} // namespace quillon::atspi
