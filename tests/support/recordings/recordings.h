#pragma once

#include <quillon/kit/menu/raw_menu_item.h>

#include <string>
#include <vector>

namespace quillon {

/// The menus of a recording as a plain reading gives them: every item by itself, in order, without a popup
/// menu's layer, down to the given depth, without what is hidden and all below it; of untitled items only
/// their place, and key equivalents of those that hold no others.
std::vector<RawMenuItem> plainReading(const std::string& file, int depth = 4);

/// One line for each item: indented title, shortcut, whether it is disabled.
std::string outlineOf(const std::vector<RawMenuItem>& items, int depth = 0);

/// The recordings' files.
std::vector<std::string> recordingFiles();

} // namespace quillon
