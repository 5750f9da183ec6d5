#pragma once

#include <quillon/menu/app_sheet.h>

#include <string>
#include <vector>

namespace quillon {

/// A sheet as people read it in a terminal: a table of commands and their keys for every top-level menu, the
/// keys in one column. Ends with a line break.
std::string sheetText(const AppSheet& sheet);

/// Rows of cells as a table: each column as wide as its widest cell, two blanks between columns, no blanks at
/// the end of a line. The width of a text is what a terminal gives it.
std::string tableText(const std::vector<std::vector<std::string>>& rows);

} // namespace quillon
