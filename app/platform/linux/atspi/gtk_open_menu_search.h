#pragma once

#include "open_menu_search.h"

#include <cstdint>
#include <unordered_map>

namespace quillon::atspi {

/// GTK 2 and 3: a menu bar has the menu that is open selected, and each menu the item that is pointed at,
/// which is what letting go of the button chooses. An item that cannot be used is never selected. Once a menu
/// has closed, its items tell no place.
class GtkOpenMenuSearch final : public OpenMenuSearch {
  public:
    GtkOpenMenuSearch(AccessibilityCalls& calls, ObjectRef menuBar)
        : m_calls(calls), m_menuBar(std::move(menuBar)) {}

    std::optional<FoundItem> find(const MenuPlace& place) override;

  private:
    std::optional<FoundItem> findInKnown(const std::vector<ObjectRef>& menus, const MenuPlace& place);
    std::optional<FoundItem> findInAll(const MenuPlace& place);
    std::optional<ObjectRef> selectedChild(const ObjectRef& object);

    AccessibilityCalls& m_calls;
    ObjectRef m_menuBar;
    std::unordered_map<std::uint64_t, std::vector<ObjectRef>> m_known; ///< by opening: the way to its menu
};

} // namespace quillon::atspi
