#pragma once

#include "menu_entry.h"
#include "raw_menu_item.h"

#include <span>
#include <vector>

namespace quillon::MenuParser {

/// How deep the program reads menus: a menu's own items are at depth 1.
inline constexpr int defaultMaxDepth = 4;

/// The commands of a menu bar that have a shortcut, depth first in menu order. Leaves out a first menu titled
/// "Apple" or "", separators and untitled items, items without a shortcut, what lies below `maxDepth`, and
/// later namesakes under the same path. Disabled items are kept.
std::vector<MenuEntry> entries(std::span<const RawMenuItem> menuBar, int maxDepth);

} // namespace quillon::MenuParser
