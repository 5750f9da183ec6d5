#pragma once

#include "terminal_text.h"

#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/shortcut/key_names.h>

#include <vector>

namespace quillon {

/// A sheet as people read it in a terminal: a table of commands and their keys for every top-level menu, the
/// keys in one column. Ends with a line break. Keys are shown by `names`, here and below; with null, by
/// symbols.
TerminalText sheetText(const AppSheet& sheet, const KeyNames* names = nullptr);

/// A practice round as people read it in a terminal: its commands numbered in the order in which they are
/// asked, with their menus and keys.
TerminalText practiceText(const std::vector<MenuEntry>& round, const KeyNames* names = nullptr);

/// The sheet with its pins and notes as Markdown.
TerminalText
markdownText(const AppSheet& sheet, const Annotations& annotations, const KeyNames* names = nullptr);

/// Rows of cells as a table: each column as wide as its widest cell, two blanks between columns, no blanks at
/// the end of a line. The width of a text is what a terminal gives it.
TerminalText tableText(const std::vector<std::vector<TerminalText>>& rows);

} // namespace quillon
