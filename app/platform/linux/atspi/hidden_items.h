#pragma once

#include "object_ref.h"

#include <quillon/app/platform/linux/atspi/key_binding/toolkit.h>

/// How toolkits tell that a menu item is hidden: that no user sees it, however the menus are opened.
namespace quillon::atspi {

/// GTK: an item without the state `visible`; items of a closed menu have it. No other toolkit gives that
/// state to the items of closed menus.
constexpr bool tellsHiddenByState(ToolkitFamily family) {
    return family == ToolkitFamily::gtk;
}

/// Qt: an item without room on the screen; items have a size whether their menu is open or not.
constexpr bool tellsHiddenBySize(ToolkitFamily family) {
    return family == ToolkitFamily::qt;
}

} // namespace quillon::atspi
