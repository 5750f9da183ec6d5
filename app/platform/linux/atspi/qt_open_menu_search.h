#pragma once

#include "menu_frames.h"
#include "open_menu_search.h"

#include <cstdint>
#include <unordered_map>
#include <utility>

namespace quillon::atspi {

/// Qt 5 and 6: the item whose submenu is open, and the title whose menu is, have the state `focused`; the
/// popup menu below it tells its place, and which of its items is at another, also once it has closed.
class QtOpenMenuSearch final : public OpenMenuSearch {
  public:
    QtOpenMenuSearch(AccessibilityCalls& calls, ObjectRef menuBar)
        : m_calls(calls), m_menuBar(std::move(menuBar)) {}

    /// Gives the whole window: which menu is in it is all that has to be known.
    std::optional<Rect> prepare(const MenuPlace& place) override;
    std::optional<FoundItem> find(const MenuPlace& place) override;

  private:
    struct OpenMenu {
        ObjectRef popup;
        std::vector<ObjectRef> titles; ///< that lead to its items
        PixelMap map;
        Extents place{};
    };

    const OpenMenu* knownMenuIn(const MenuPlace& place);
    std::optional<OpenMenu> menuIn(const MenuPlace& place);
    std::optional<OpenMenu> menuBelow(const OpenMenu& parent, const MenuPlace& place);
    std::optional<OpenMenu> opened(const OpenMenu& parent, const ObjectRef& title);
    std::optional<ObjectRef> objectAt(const ObjectRef& object, Point place);
    std::optional<ObjectRef> focusedChild(const ObjectRef& menu);
    std::optional<ObjectRef> popupOf(const ObjectRef& item);
    std::optional<Extents> extents(const ObjectRef& object);
    const std::vector<ObjectRef>& children(const ObjectRef& object);

    AccessibilityCalls& m_calls;
    ObjectRef m_menuBar;
    std::unordered_map<std::uint64_t, OpenMenu> m_known; ///< by opening
    std::unordered_map<ObjectRef, std::vector<ObjectRef>> m_children;
};

} // namespace quillon::atspi
