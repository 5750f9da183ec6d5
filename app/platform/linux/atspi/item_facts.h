#pragma once

#include <quillon/app/ports/menu_use.h>
#include <quillon/kit/menu/raw_menu_item.h>

#include <span>
#include <string>

namespace quillon::atspi {

/// An item's path, shortcut and use, as they stand on the sheet that is made of the whole menu bar. `menus`
/// are the titles that lead to it, the top-level menu's first. The path is empty where the sheet could not
/// have the item: it is untitled, or too deep.
MenuItemFacts factsOf(std::span<const std::string> menus, const RawMenuItem& item);

} // namespace quillon::atspi
