#pragma once

#include "accessibility_calls.h"
#include "menu_place.h"

#include <quillon/app/platform/linux/atspi/key_binding/toolkit.h>
#include <quillon/app/ports/geometry.h>

#include <memory>
#include <optional>
#include <vector>

namespace quillon::atspi {

/// An item of an open menu.
struct FoundItem {
    ObjectRef object;
    std::vector<ObjectRef> menus; ///< whose titles lead to it, the top-level menu first
    Rect frame;                   ///< in the pixels of the display
};

/// Finds items of the open menus of one menu bar by where they are. Each toolkit has its way. It remembers
/// which menu is in which window, so that most items cost one question.
class OpenMenuSearch {
  public:
    virtual ~OpenMenuSearch() = default;

    /// See `MenuLookup::prepare`. Waits.
    virtual std::optional<Rect> prepare(const MenuPlace& place) = 0;
    /// Waits; absent when nothing of the menu bar's menus is there, or nothing that is an item.
    virtual std::optional<FoundItem> find(const MenuPlace& place) = 0;
};

/// nullptr for toolkits whose menus cannot be searched. `calls` must outlive the search.
std::unique_ptr<OpenMenuSearch>
makeOpenMenuSearch(AccessibilityCalls& calls, const ObjectRef& menuBar, ToolkitFamily family);

} // namespace quillon::atspi
