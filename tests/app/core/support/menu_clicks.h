#pragma once

#include <quillon/app/platform/fake/fake_menu_use.h>
#include <quillon/kit/menu/menu_entry.h>

namespace quillon {

/// All that a desktop notices of a click on a command, from the opening of its menu on.
inline void tellClick(FakeMenuUse& menus, const RunningApp& app, const MenuEntry& entry) {
    menus.tell(menu_use::Opened{app});
    menus.tell(menu_use::Pointed{1});
    menus.tell(
        menu_use::Told{1, {.path = entry.path, .shortcut = entry.shortcut, .frame = Rect{0, 0, 100, 20}}});
    menus.tell(menu_use::Released{{50, 10}});
    menus.tell(menu_use::Closed{});
}

} // namespace quillon
