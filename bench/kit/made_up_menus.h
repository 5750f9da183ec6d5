#pragma once

#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/menu/raw_menu_item.h>
#include <quillon/kit/records/json_codec.h>

#include <vector>

namespace quillon {

/// A menu bar of `items` items in all, shaped like that of a large application: ten menus, every eighth item
/// a submenu of ten, separators, and a shortcut for three items of four.
std::vector<RawMenuItem> madeUpMenuBar(int items);

/// `count` entries of such menus.
std::vector<MenuEntry> madeUpEntries(int count);

/// Sheets of `applications` applications with `entries` entries each.
SheetMap madeUpSheets(int applications, int entries);

} // namespace quillon
