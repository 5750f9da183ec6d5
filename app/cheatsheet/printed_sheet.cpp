#include "printed_sheet.h"

#include "page_measures.h"

#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/key_caps.h>

namespace quillon {

PrintedSheet PrintedSheet::of(const CheatSheetSource& source) {
    PrintedSheet printed{
        .appName = foreignLine(source.sheet.appName.empty() ? source.sheet.bundleID : source.sheet.appName),
        .shortcuts = static_cast<qint64>(source.sheet.entries.size()),
        .hasSigns = source.names == nullptr,
        .pages = CheatSheet::paginate(
            CheatSheet::lines(source.sheet, source.annotations, CheatSheet::IncludeNotes::yes, source.names),
            {.linesPerColumn = PageMeasures::linesPerColumn, .columns = PageMeasures::columns})};
    for (const MenuEntry& entry : source.sheet.entries)
        printed.caps.try_emplace(
            displayWith(entry.shortcut, source.names), capTexts(entry.shortcut, source.names));
    return printed;
}

} // namespace quillon
