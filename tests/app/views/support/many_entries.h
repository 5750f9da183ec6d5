#pragma once

#include <quillon/kit/menu/app_sheet.h>

#include <cstddef>
#include <string>

namespace quillon {

/// A sheet of an application with very many commands: twelve menus with submenus, each title another one.
AppSheet sheetOfMany(std::size_t count);

/// Titles that no column is wide enough for, words without a place to break, right-to-left and pictographic
/// text, next to short ones.
AppSheet sheetOfLongTitles();

/// An application that has answered and shares no commands.
AppSheet emptySheet(std::string appName);

} // namespace quillon
